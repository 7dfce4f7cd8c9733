// SPDX-License-Identifier: MIT
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QProcess>

using testing::HasSubstr;

namespace {

struct Outcome {
    int status; ///< -1 when it crashed or hung
    std::string output, errors;
};

Outcome runHost(const QStringList& arguments) {
    QProcess host;
    host.start(QStringLiteral(KORVEX_HOST), arguments);
    const bool ended = host.waitForFinished(30'000) && host.exitStatus() == QProcess::NormalExit;
    return {ended ? host.exitCode() : -1, host.readAllStandardOutput().toStdString(),
            host.readAllStandardError().toStdString()};
}

constexpr const char* kInfo = "Contents/Info.plist";
constexpr const char* kCode = "Contents/Linux/Korvex";
constexpr const char* kForm = "Contents/Resources/Pane.ui";
constexpr const char* kNotice = "Contents/Resources/axreq.ui";
constexpr const char* kWhole = nullptr;
constexpr const char* kGone = nullptr;

/// Faults: a text in one of the bundle's files, or the whole file, is replaced.
const struct {
    const char *file, *old, *now;
    const char *named, *said; ///< the file and the thing that the message names
} kFaults[] = {
    {kInfo, kWhole, kGone, kInfo, "can't be read"},
    {kInfo, "<string>Korvex</string>", "<string>Other</string>", kInfo,
     "CFBundleExecutable 'Other'"},
    {kInfo, "VLDKorvexPane", "NoPane", kInfo, "NSPrincipalClass 'NoPane' is no class"},
    {kInfo, "<string>Pane</string>", "<string>Other</string>", "Contents/Resources/Other.ui",
     "no such file"},
    {kNotice, kWhole, "<ui>", kNotice, "reading the UI file"},
    {kNotice, "\">axCn</string>", "\">axXx</string>", kNotice,
     "window 'window' has no command 'axCn'"},
    {kCode, kWhole, kGone, kInfo, "CFBundleExecutable 'Korvex'"},
    {kCode, kWhole, "no library", kCode, "file too short"},
    {kForm, "</ui>", "", kForm, ""},
    {kForm, "\">volume</string>", "\">volum</string>", kForm,
     "PreferenceWrangler has no outlet 'volum'"},
    {kForm, "\">masterOnOffRadios</string>", "\">volume</string>", kForm,
     "outlet 'volume' of PreferenceWrangler takes SliderController, not NSMatrix"},
    {kForm, "changedScanMode:", "changedScanMood:", kForm, "the action 'changedScanMood:'"},
    {kForm, "\">BumperController</string>", "\">BumpController</string>", kForm,
     "no class BumpController"},
};

TEST(HostCheckTest, ABrokenBundleIsRefusedByFileAndThing) {
    const fs::path bundle = makeSandboxFolder("Broken Pane.prefPane");
    for (const auto& fault : kFaults) {
        SCOPED_TRACE(testing::Message() << fault.file << ": " << (fault.old ? fault.old : "")
                                        << " -> " << (fault.now ? fault.now : "gone"));
        fs::remove_all(bundle);
        fs::create_directories(bundle / "Contents/Linux");
        for (const char* file : {kInfo, kForm, kNotice})
            writeFile(bundle / file, readFile(fs::path(KORVEX_BUNDLE) / file));
        fs::create_symlink(fs::path(KORVEX_BUNDLE) / kCode, bundle / kCode);

        QByteArray content(readFile(bundle / fault.file).c_str());
        EXPECT_TRUE(content.contains(fault.old));
        fs::remove(bundle / fault.file);
        if (fault.now)
            writeFile(bundle / fault.file,
                      fault.old ? content.replace(fault.old, fault.now).toStdString() : fault.now);
        const Outcome outcome = runHost({"--check", QString::fromStdString(bundle.string())});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.errors, HasSubstr(bundle / fault.named));
        EXPECT_THAT(outcome.errors, HasSubstr(fault.said));
        EXPECT_EQ(outcome.output, "");
    }
}

TEST(HostCheckTest, EachCommandLineHasItsOutcome) {
    const struct {
        QStringList arguments;
        int status;
        const char *output, *errors; ///< parts of them; none at all when empty
    } cases[] = {
        {{"--check", KORVEX_BUNDLE}, 0, "", ""},
        {{"--version"}, 0, "korvex-preferences 1.", ""},
        {{"--check", "/nonexistent"}, 1, "", "/nonexistent/Contents/Info.plist"},
        {{"--unknown"}, 2, "", "Usage:"},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.arguments.join(' ').toStdString());
        const Outcome outcome = runHost(row.arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_THAT(outcome.output, HasSubstr(row.output));
        EXPECT_THAT(outcome.errors, HasSubstr(row.errors));
        EXPECT_EQ(outcome.output.empty(), !*row.output);
        EXPECT_EQ(outcome.errors.empty(), !*row.errors);
    }
    unsetenv("QT_QPA_PLATFORM");
    EXPECT_EQ(runHost({"--check", KORVEX_BUNDLE}).status, 0) << "needs no display";
    const Outcome outcome = runHost({});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("there is no display"));
}

} // namespace
