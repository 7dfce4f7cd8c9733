// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchTrouble.h"
#include "tests/platform/CoreServices/TestPeer.h"
#include "tests/support/TestApplication.h"

#include <QTest>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr OSType kPeer = fourCharCode("peer");

class LaunchServicesTest : public ProcessTest {
protected:
    LaunchServicesTest() { use("#!/bin/sh\necho $$ >>'" + pids_.string() + "'\nexec sleep 600\n"); }

    ~LaunchServicesTest() override {
        if (!started().empty())
            kill(started().back(), SIGKILL); // the tests have ended those before
    }

    void use(const std::string& code) { url_ = makeTestApplication(bundle_, code); }

    OSStatus open() { return LSOpenCFURLRef(url_.get(), nullptr); }

    /// The process IDs of all started programs, in order.
    std::vector<pid_t> started() {
        std::istringstream file(readFile(pids_));
        return {std::istream_iterator<pid_t>(file), {}};
    }

    /// Waits until the `count`th process runs its program.
    pid_t waitForStart(std::size_t count) {
        const auto hasStarted = [&] {
            return started().size() == count &&
                   fs::read_symlink(proc(started().back()) / "exe").filename() == "sleep";
        };
        EXPECT_TRUE(QTest::qWaitFor(hasStarted, 20'000));
        return started().empty() ? 0 : started().back();
    }

    static void waitForPeer(bool isUp) {
        const auto is = [=] { return (findProcess(kPeer) != kNoProcess) == isUp; };
        ASSERT_TRUE(QTest::qWaitFor(is, 10'000)) << isUp;
    }

    static pid_t peer() {
        const ProcessSerialNumber psn = findProcess(kPeer);
        pid_t pid = 0;
        EXPECT_EQ(GetProcessPID(&psn, &pid), noErr);
        return pid;
    }

    static fs::path proc(pid_t pid) { return "/proc/" + std::to_string(pid); }

    fs::path bundle_ = makeSandboxFolder("Test Tool.app"), pids_ = makeSandboxFolder("") / "pids";
    CFRef<CFURL> url_;
};

TEST_F(LaunchServicesTest, WhatCantBeStartedIsRefusedByReason) {
    use("#!/no/such/interpreter\n");
    EXPECT_EQ(open(), kLSUnknownErr);
    fs::permissions(bundle_ / "Contents/Linux/run", fs::perms::owner_read);
    EXPECT_EQ(open(), kLSUnknownErr);
    for (const std::string name : {"absent", "../Info.plist"}) {
        writeFile(bundle_ / "Contents/Info.plist",
                  dictionaryFile("<key>CFBundleExecutable</key><string>" + name + "</string>"));
        EXPECT_EQ(open(), kLSNotAnApplicationErr) << name;
    }
    fs::remove_all(bundle_);
    EXPECT_EQ(open(), kLSApplicationNotFoundErr);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left over";
}

TEST_F(LaunchServicesTest, OneProgramRunsAtATimeDetachedAndIsReapedAtItsEnd) {
    signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR2);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);
    EXPECT_GE(::open("/dev/zero", O_RDONLY), 0) << "to be inherited";
    ASSERT_EQ(open(), noErr);
    EXPECT_EQ(open(), noErr) << "while it is still starting";
    const pid_t first = waitForStart(1);
    EXPECT_EQ(open(), noErr) << "while it runs";
    EXPECT_EQ(getsid(first), first);
    for (const char* file : {"fd/0", "fd/1"})
        EXPECT_EQ(fs::read_symlink(proc(first) / file), "/dev/null");
    EXPECT_EQ(fs::read_symlink(proc(first) / "cwd"), "/");
    const auto openFiles = [=] { return fs::directory_iterator(proc(first) / "fd"); };
    EXPECT_TRUE(QTest::qWaitFor([=] { return std::distance(openFiles(), {}) == 3; }))
        << "once the loader has closed its own";
    for (const char* mask : {"SigBlk:\t", "SigIgn:\t"}) {
        const std::string status = readFile(proc(first) / "status");
        // Higher bits are the C library's own.
        const auto bits = std::stoull(status.substr(status.find(mask) + 8, 16), nullptr, 16);
        EXPECT_EQ(bits & 0x7FFFFFFF, 0u) << mask;
    }

    signalProcess(first, SIGKILL);
    ASSERT_TRUE(QTest::qWaitFor([&] { return kill(first, 0) != 0; }, 20'000)) << "not reaped";
    EXPECT_EQ(open(), noErr);
    const pid_t second = waitForStart(2);
    signalProcess(second, SIGKILL);
    // At once, before the event loop has seen its end.
    siginfo_t info;
    EXPECT_EQ(waitid(P_PID, static_cast<id_t>(second), &info, WEXITED | WNOWAIT), 0);
    EXPECT_EQ(open(), noErr);
    EXPECT_NE(kill(second, 0), 0) << "not reaped";
    waitForStart(3);
}

TEST_F(LaunchServicesTest, OneThatHasLeftTheBusIsFollowedByAnotherOnceItHasEnded) {
    use("#!/bin/sh\necho $$ >>'" + pids_.string() + "'\n'" TEST_PEER "' " +
        std::to_string(kApplication) + "\nsleep 0.5\n");
    writeFile(bundle_ / "Contents/Info.plist",
              dictionaryFile("<key>CFBundleExecutable</key><string>run</string>"
                             "<key>CFBundleSignature</key><string>peer</string>"));
    EXPECT_EQ(open(), noErr);
    waitForPeer(true);
    signalProcess(peer(), SIGKILL);
    waitForPeer(false);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(open(), noErr);
    EXPECT_EQ(started().size(), 1u);
    EXPECT_TRUE(isLaunching(bundle_.string()));
    waitForPeer(true);
    EXPECT_EQ(started().size(), 2u);
    signalProcess(peer(), SIGKILL);
}

TEST_F(LaunchServicesTest, AccessibilitySettingsAreThoseOfTheDesktopThatIsRunning) {
    const struct {
        const char *desktop, *installed, *started; ///< empty: nothing
    } cases[] = {
        {"ubuntu:GNOME", "gnome-control-center", "gnome-control-center universal-access\n"},
        {"KDE", "systemsettings5", "systemsettings5 kcm_access\n"},
        {"X-Cinnamon", "cinnamon-settings", "cinnamon-settings accessibility\n"},
        {"GNOME", "systemsettings", ""},
        {"", "gnome-control-center", ""}};

    const fs::path programs = makeSandboxFolder("bin"), log = programs / "log";
    setenv("PATH", (programs.string() + ":/bin").c_str(), 1);
    const auto pane = CFURLCreateFromFileSystemRepresentation(
        "/System/Library/PreferencePanes/UniversalAccessPref.prefPane", true);
    for (const auto& test : cases) {
        SCOPED_TRACE(test.desktop + std::string(", ") + test.installed);
        fs::remove_all(programs);
        writeFile(programs / test.installed,
                  "#!/bin/sh\nlog='" + log.string() +
                      "'\necho \"${0##*/} $*\" >\"$log.new\"; mv \"$log.new\" \"$log\"\n");
        fs::permissions(programs / test.installed, fs::perms::owner_all);
        setenv("XDG_CURRENT_DESKTOP", test.desktop, 1);
        const bool starts = LSOpenCFURLRef(pane.get(), nullptr) == noErr;
        EXPECT_EQ(starts, *test.started != '\0');
        const auto ended = [&] { return fs::exists(log) && waitpid(-1, nullptr, WNOHANG) == -1; };
        EXPECT_TRUE(!starts || QTest::qWaitFor(ended, 10'000)) << "logged and reaped";
        EXPECT_EQ(readFile(log), test.started);
    }
}

} // namespace
