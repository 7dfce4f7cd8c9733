#include "platform/CoreServices/LaunchServices.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QTest>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

TEST(AccessibilitySettingsTest, OpensThoseOfTheDesktopThatIsRunning) {
    const struct {
        const char *desktop, *installed, *started; ///< null: nothing
    } cases[] = {
        {"GNOME", "gnome-control-center", "gnome-control-center universal-access"},
        {"ubuntu:GNOME", "gnome-control-center", "gnome-control-center universal-access"},
        {"KDE", "systemsettings", "systemsettings kcm_access"},
        {"KDE", "systemsettings5", "systemsettings5 kcm_access"},
        {"XFCE", "xfce4-accessibility-settings", "xfce4-accessibility-settings "},
        {"MATE", "mate-at-properties", "mate-at-properties "},
        {"X-Cinnamon", "cinnamon-settings", "cinnamon-settings accessibility"},
        {"GNOME", "systemsettings", nullptr},
        {"sway", "gnome-control-center", nullptr},
        {nullptr, "gnome-control-center", nullptr},
    };

    const fs::path programs = makeSandboxFolder("bin"), log = programs / "log";
    setenv("PATH", (programs.string() + ":/bin").c_str(), 1);
    const auto pane = CFURLCreateFromFileSystemRepresentation(
        "/System/Library/PreferencePanes/UniversalAccessPref.prefPane", true);
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.desktop << ", " << test.installed);
        fs::remove_all(programs);
        writeFile(programs / test.installed,
                  "#!/bin/sh\necho \"${0##*/} $*\" > log.new; mv log.new " + log.string() + "\n");
        fs::permissions(programs / test.installed, fs::perms::owner_all);
        if (test.desktop)
            setenv("XDG_CURRENT_DESKTOP", test.desktop, 1);
        else
            unsetenv("XDG_CURRENT_DESKTOP");
        fs::current_path(programs);
        EXPECT_EQ(LSOpenCFURLRef(pane.get(), nullptr),
                  test.started ? OSStatus{noErr} : kLSApplicationNotFoundErr);
        if (test.started) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return fs::exists(log); }, 10'000));
            EXPECT_EQ(readFile(log), test.started + std::string("\n"));
        }
    }
}

} // namespace
