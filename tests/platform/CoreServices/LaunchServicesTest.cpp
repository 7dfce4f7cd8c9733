#include "platform/CoreServices/LaunchServices.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class LaunchServicesTest : public ProcessTest {
protected:
    LaunchServicesTest() {
        makeApplication("code", "#!/bin/sh\necho $$ >>'" + pids_.string() + "'\nexec sleep 600\n");
    }

    ~LaunchServicesTest() override {
        if (!started().empty())
            ::kill(started().back(), SIGKILL); // the tests have ended those before
    }

    void makeApplication(const std::string& executable, const std::string& code,
                         fs::perms mode = fs::perms::owner_all) {
        writeFile(
            bundle_ / "Contents/Info.plist",
            dictionaryFile("<key>CFBundleExecutable</key><string>" + executable + "</string>"));
        writeFile(bundle_ / "Contents/Linux/code", code);
        fs::permissions(bundle_ / "Contents/Linux/code", mode);
    }

    OSStatus open(CFRef<CFURL>* launched = nullptr) {
        return LSOpenCFURLRef(CFURLCreateFromFileSystemRepresentation(bundle_.c_str(), true).get(),
                              launched);
    }

    /// The process IDs of all that were started, in order.
    std::vector<pid_t> started() {
        std::istringstream file(readFile(pids_));
        return {std::istream_iterator<pid_t>(file), {}};
    }

    /// Waits until the `count`th has come as far as its program.
    pid_t waitForStart(std::size_t count) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                return started().size() == count &&
                       fs::read_symlink(proc(started().back()) / "exe").filename() == "sleep";
            },
            20'000));
        return started().empty() ? 0 : started().back();
    }

    static fs::path proc(pid_t pid) { return "/proc/" + std::to_string(pid); }

    fs::path bundle_ = makeSandboxFolder("Test Tool.app");
    fs::path pids_ = makeSandboxFolder("") / "pids";
};

TEST_F(LaunchServicesTest, WhatCantBeStartedIsRefusedByReason) {
    EXPECT_EQ(LSOpenCFURLRef(nullptr, nullptr), kLSApplicationNotFoundErr);
    makeApplication("absent", "");
    EXPECT_EQ(open(), kLSNotAnApplicationErr);
    makeApplication("../Info.plist", "");
    EXPECT_EQ(open(), kLSNotAnApplicationErr);
    writeFile(bundle_ / "Contents/Info.plist", dictionaryFile(""));
    EXPECT_EQ(open(), kLSNotAnApplicationErr);
    makeApplication("code", "#!/bin/sh\n", fs::perms::owner_read);
    EXPECT_EQ(open(), kLSUnknownErr);
    makeApplication("code", "no program");
    EXPECT_EQ(open(), kLSUnknownErr);
    makeApplication("code", "#!/no/such/interpreter\n");
    EXPECT_EQ(open(), kLSUnknownErr);
    fs::remove(bundle_ / "Contents/Info.plist");
    EXPECT_EQ(open(), kLSApplicationNotFoundErr);
    fs::remove_all(bundle_);
    EXPECT_EQ(open(), kLSApplicationNotFoundErr);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left over";
}

TEST_F(LaunchServicesTest, TheProgramIsDetachedFromThisProcess) {
    ::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR2);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);
    const int inheritable = ::open("/dev/zero", O_RDONLY);
    CFRef<CFURL> launched;
    ASSERT_EQ(open(&launched), noErr);
    EXPECT_EQ(launched->path(), bundle_);
    const pid_t pid = waitForStart(1);
    EXPECT_EQ(getsid(pid), pid);
    EXPECT_EQ(fs::read_symlink(proc(pid) / "fd/0"), "/dev/null");
    EXPECT_EQ(std::distance(fs::directory_iterator(proc(pid) / "fd"), {}), 3);
    for (const char* mask : {"SigBlk:\t", "SigIgn:\t"}) {
        const std::string status = readFile(proc(pid) / "status");
        const std::string bits = status.substr(status.find(mask) + std::strlen(mask), 16);
        // Beyond these come the C library's own.
        EXPECT_EQ(std::stoull(bits, nullptr, 16) & 0x7FFFFFFF, 0u) << mask << bits;
    }
    close(inheritable);
}

TEST_F(LaunchServicesTest, OneRunsAtATimeAndIsReapedAtItsEnd) {
    ASSERT_EQ(open(), noErr);
    EXPECT_EQ(open(), noErr) << "while it is still starting";
    const pid_t first = waitForStart(1);
    EXPECT_EQ(open(), noErr) << "while it runs";
    signalProcess(first, SIGKILL);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ::kill(first, 0) != 0; }, 20'000)) << "not reaped";
    EXPECT_EQ(open(), noErr);
    const pid_t second = waitForStart(2);
    signalProcess(second, SIGKILL);
    // At once, before the event loop has seen its end.
    siginfo_t info;
    EXPECT_EQ(waitid(P_PID, static_cast<id_t>(second), &info, WEXITED | WNOWAIT), 0);
    EXPECT_EQ(open(), noErr);
    EXPECT_NE(::kill(second, 0), 0) << "not reaped";
    waitForStart(3);
}

} // namespace
