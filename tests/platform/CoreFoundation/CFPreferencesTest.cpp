// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/PreferencesMerging.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <regex>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Each test has its own domains, since the process keeps domains in memory.
class CFPreferencesTest : public testing::Test {
protected:
    CFPreferencesTest() {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        useDomain("org.example." + name);
    }

    void useDomain(const std::string& name) {
        domain_ = createFromUTF8(name);
        own_ = fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences" / (name + ".plist");
        everyones_ = fs::path(std::getenv("XDG_CONFIG_DIRS")) / "Preferences" / (name + ".plist");
    }

    void set(const char* key, const std::string& value) {
        CFPreferencesSetAppValue(CFSTR(key), CFSTR(value.c_str()), domain_.get());
    }

    /// "-" when there is no string.
    std::string get(const char* key) {
        const auto value = CFPreferencesCopyAppValue(CFSTR(key), domain_.get());
        const auto* string = dynamicCFCast<CFString>(value.get());
        return string ? toUTF8(string) : "-";
    }

    bool synchronize() { return CFPreferencesAppSynchronize(domain_.get()); }

    /// A file with these key=value pairs.
    static std::string file(const std::string& pairs) {
        return R"(<plist version="1.0"><dict>)" +
               std::regex_replace(pairs, std::regex("(\\w+)=(\\w+) ?"),
                                  "<key>$1</key><string>$2</string>") +
               "</dict></plist>";
    }

    /// The file's XML from its root on, as one line.
    static std::string stored(const fs::path& path) {
        const std::string text = std::regex_replace(readFile(path), std::regex("[\n\t]"), "");
        return text.substr(std::min(text.find("<plist"), text.size()));
    }

    CFRef<CFString> domain_;
    fs::path own_, everyones_;
};

TEST_F(CFPreferencesTest, AllUsersValuesAreDefaults) {
    // Paths that aren't absolute are ignored.
    const std::string relative = "relative::", vendors = makeSandboxFolder("vendor");
    setenv("XDG_CONFIG_HOME", "relative", 1);
    setenv("XDG_CONFIG_DIRS", (relative + std::getenv("XDG_CONFIG_DIRS") + ':' + vendors).c_str(),
           1);
    writeFile(everyones_, file("a=admin b=admin"));
    writeFile(fs::path(vendors) / "Preferences" / everyones_.filename(), file("b=v d=vendor"));
    set("a", "mine");
    EXPECT_EQ(get("a") + get("b") + get("d"), "mineadminvendor");
    EXPECT_FALSE(fs::exists(own_)) << "before synchronising";
    set("b", "admin"); // chosen by this user too: stored, though it changes nothing now
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), file("a=mine b=admin"));
    EXPECT_EQ(fs::status(own_).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(own_.parent_path()).permissions(), fs::perms(0700));
    CFPreferencesSetAppValue(CFSTR("a"), nullptr, domain_.get());
    EXPECT_EQ(get("a"), "admin");

    const CFString *domain = domain_.get(), *everyone = kCFPreferencesAnyUser;
    CFPreferencesSetValue(CFSTR("c"), CFSTR("new"), domain, everyone, kCFPreferencesAnyHost);
    EXPECT_TRUE(CFPreferencesSynchronize(domain, everyone, kCFPreferencesAnyHost));
    EXPECT_EQ(stored(everyones_), file("a=admin b=admin c=new"));
    EXPECT_EQ(fs::status(everyones_).permissions(), fs::perms(0644));
}

TEST_F(CFPreferencesTest, TwoWritersKeepEachOthersKeys) {
    writeFile(own_, file("again=1 mine=1 theirs=1 spelt=1"));
    EXPECT_EQ(get("theirs"), "1");
    writeFile(own_, file("again=2 mine=1 theirs=2 spelt=1 new=2"));
    set("mine", "3");
    set("again", "1"); // as it is here: chosen anew
    for (const char* key : {"theirs", "spelt", "gone"}) {
        set(key, "3");
        preferencesGiveWay(CFSTR(key), CFSTR("1"), domain_.get());
    }
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), file("again=1 gone=3 mine=3 new=2 spelt=3 theirs=2"));

    writeFile(own_, file("theirs=4"));
    EXPECT_TRUE(synchronize()) << "with nothing to write, it takes in what others wrote";
    EXPECT_EQ(get("theirs") + get("mine"), "4-");
    fs::remove(own_);
    EXPECT_TRUE(synchronize());
    EXPECT_FALSE(fs::exists(own_));
}

TEST_F(CFPreferencesTest, WhatCannotBeStoredHindersNothingElse) {
    CFPreferencesSetAppValue(CFSTR("bad"), CFRef<CFString>::adopt(new CFString(u"\xD800")).get(),
                             domain_.get());
    set("\x1", "bad");
    set("bad", "\x1");
    const auto list = CFArrayCreateMutable();
    for (const char* item : {"1", "2"}) { // the second one changes an object that was set
        CFArrayAppendValue(list.get(), CFSTR(item));
        CFPreferencesSetAppValue(CFSTR("list"), list.get(), domain_.get());
        EXPECT_TRUE(synchronize());
    }
    EXPECT_THAT(stored(own_), testing::EndsWith("<dict><key>list</key><array><string>1</string>"
                                                "<string>2</string></array></dict></plist>"));

    for (const char* name : {"", "../up", "a/b"}) {
        useDomain(name);
        set("a", "1");
        EXPECT_EQ(get("a"), "-") << name;
        EXPECT_FALSE(synchronize()) << name;
    }
}

TEST_F(CFPreferencesTest, DamagedFileIsKeptAside) {
    for (const std::string& content :
         {std::string(), file("a=1").substr(0, 40), "bplist00" + std::string(10u << 20, 'x')}) {
        useDomain("org.example.damaged" + std::to_string(content.size()));
        SCOPED_TRACE(content.size());
        writeFile(own_, content);
        writeFile(own_.string() + ".damaged-1", "earlier");
        EXPECT_EQ(get("a"), "-");
        EXPECT_FALSE(synchronize());
        EXPECT_EQ(preferencesLoadOutcome(domain_.get()).path, own_);
        set("b", "2");
        EXPECT_TRUE(synchronize());
        EXPECT_EQ(stored(own_), file("b=2"));
        EXPECT_EQ(readFile(own_.string() + ".damaged-1"), "earlier");
        EXPECT_EQ(readFile(own_.string() + ".damaged-2"), content);

        writeFile(own_, "garbage");
        set("c", "3");
        EXPECT_TRUE(synchronize());
        EXPECT_EQ(stored(own_), file("b=2 c=3")) << "damaged later, replaced by what is known";
        EXPECT_EQ(readFile(own_.string() + ".damaged-3"), "garbage");
        const FileOutcome outcome = preferencesLoadOutcome(domain_.get());
        EXPECT_TRUE(outcome.trouble == FileTrouble::Damaged && outcome.isKeptAside);
        EXPECT_EQ(outcome.path, own_.string() + ".damaged-3");
    }
}

TEST_F(CFPreferencesTest, FileBehindASymbolicLinkIsRewrittenThere) {
    const fs::path target = makeSandboxFolder("dotfiles") / "target.plist";
    writeFile(target, file("k=v"));
    fs::create_directories(own_.parent_path());
    fs::create_symlink("../../../dotfiles/target.plist", own_);
    set("n", "1");
    EXPECT_TRUE(synchronize());
    EXPECT_TRUE(fs::is_symlink(own_));
    EXPECT_EQ(stored(target), file("k=v n=1"));
}

TEST_F(CFPreferencesTest, WhatIsInTheWayIsLeftAloneAndTheMarksStay) {
    const fs::path config = makeSandboxFolder("open"), aside = config / "aside";
    setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    useDomain("org.example.obstacles");
    const fs::path folder = own_.parent_path();
    writeFile(own_, file("a=1"));
    const auto expectRefused = [&](const char* what, FileTrouble trouble, const fs::path& path,
                                   const std::function<void()>& clear) {
        set("b", std::string(2000, 'x'));
        EXPECT_FALSE(synchronize()) << what;
        const FileOutcome outcome = preferencesSaveOutcome(domain_.get());
        EXPECT_TRUE(outcome.trouble == trouble && preferencesAreUnsaved(domain_.get())) << what;
        EXPECT_EQ(outcome.path, path) << what;
        clear();
        EXPECT_EQ(stored(own_), file("a=1")) << what;
        EXPECT_FALSE(fs::exists(own_.string() + ".damaged-1")) << what;
        EXPECT_EQ(countPending(own_), 0) << what;
    };

    fs::permissions(config.parent_path(), fs::perms(0711));
    fs::permissions(folder, fs::perms(0777));
    fs::permissions(own_, fs::perms::none);
    ASSERT_EQ(geteuid() == 0 ? seteuid(65534) : 0, 0); // root reads everything
    expectRefused("unreadable", FileTrouble::NotAllowed, own_, [&] {
        ASSERT_EQ(seteuid(getuid()), 0);
        fs::permissions(own_, fs::perms(0600));
    });

    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size stops a write midway
    rlimit sizes{};
    getrlimit(RLIMIT_FSIZE, &sizes);
    const rlimit small{1000, sizes.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    expectRefused("full disk", FileTrouble::Full, own_, [&] { setrlimit(RLIMIT_FSIZE, &sizes); });

    const std::string lockPath = own_.string() + ".lock";
    const int lock = open(lockPath.c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    expectRefused("somebody holds the lock", FileTrouble::InUse, lockPath, [&] { close(lock); });

    fs::rename(own_, aside);
    ASSERT_EQ(mkfifo(own_.c_str(), 0600), 0);
    expectRefused("no regular file", FileTrouble::InTheWay, own_, [&] { fs::rename(aside, own_); });

    fs::rename(folder, aside);
    writeFile(folder, "in the way");
    EXPECT_EQ(preferencesSaveOutlook(domain_.get()).path, folder);
    const fs::path copy = config / "copy.plist";
    EXPECT_EQ(preferencesSaveCopy(domain_.get(), copy).trouble, FileTrouble::None);
    expectRefused("no folder", FileTrouble::InTheWay, folder, [&] {
        fs::remove(folder);
        fs::rename(aside, folder);
    });

    fs::rename(folder, aside);
    fs::create_symlink(folder.filename(), folder);
    EXPECT_EQ(preferencesSaveOutlook(domain_.get()).trouble, FileTrouble::InTheWay);
    expectRefused("a link that leads to itself", FileTrouble::InTheWay, folder, [&] {
        fs::remove(folder);
        fs::rename(aside, folder);
    });

    ASSERT_EQ(mkfifo((own_.string() + ".new").c_str(), 0600), 0); // left behind: goes
    EXPECT_EQ(preferencesSaveOutlook(domain_.get()).trouble, FileTrouble::None);
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(readFile(copy), readFile(own_));
    EXPECT_TRUE(soonNonePending(own_));
    EXPECT_FALSE(preferencesAreUnsaved(domain_.get()));
    EXPECT_EQ(stored(own_), file("a=1 b=" + std::string(2000, 'x')));
}

} // namespace
