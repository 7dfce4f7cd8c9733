// SPDX-License-Identifier: MIT
#include "host/Troubles.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "platform/CoreServices/ChangeWatch.h"
#include "platform/CoreServices/LaunchTrouble.h"
#include "platform/CoreServices/StateFile.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstring>

namespace {

constexpr char kFiles[] = "files";
constexpr char kSaving[] = "saving";
constexpr char kLaunching[] = "launching";
constexpr char kCrash[] = "crash";

std::string reasonOf(const FileOutcome& outcome) {
    switch (outcome.trouble) {
    case FileTrouble::None:
        return {};
    case FileTrouble::Damaged:
        return filled(localized("Troubles", "%1 is damaged"), {outcome.path});
    case FileTrouble::NotAllowed:
        return filled(localized("Troubles", "no permission for %1"), {outcome.path});
    case FileTrouble::ReadOnly:
        return filled(localized("Troubles", "%1 can only be read"), {outcome.path});
    case FileTrouble::Full:
        return localized("Troubles", "the disk is full");
    case FileTrouble::InUse:
        return localized("Troubles", "another program is using the file");
    case FileTrouble::InTheWay:
        return filled(localized("Troubles", "%1 is something else than expected"), {outcome.path});
    case FileTrouble::TooLarge:
        return filled(localized("Troubles", "%1 would become too large"), {outcome.path});
    case FileTrouble::Failed:
        break;
    }
    return outcome.path + ": " + std::strerror(outcome.error);
}

/// Empty when the domain's file can be read and written.
std::string textOfUnusableFile(const CFString* domain) {
    const FileOutcome load = preferencesLoadOutcome(domain);
    if (load.trouble == FileTrouble::Damaged)
        return filled(
            load.isKeptAside
                ? localized("Troubles", "Your settings file was damaged and is kept as %1. The "
                                        "usual settings are shown instead.")
                : localized("Troubles", "Your settings file %1 is damaged. The usual settings are "
                                        "shown instead; the file will be kept beside the new one."),
            {load.path});
    if (load.trouble != FileTrouble::None)
        return filled(
            localized("Troubles",
                      "Your settings can’t be read: %1. The usual settings are shown instead."),
            {reasonOf(load)});
    const FileOutcome outlook = preferencesSaveOutlook(domain);
    if (outlook.trouble != FileTrouble::None)
        return filled(localized("Troubles", "What you change here can’t be saved: %1."),
                      {reasonOf(outlook)});
    return {};
}

/// The first domain with unsaved values. Null when there is none.
const CFString* unsavedDomain() {
    for (const CFString* domain : preferencesDomainsInUse())
        if (preferencesAreUnsaved(domain))
            return domain;
    return nullptr;
}

using Buttons = std::vector<UserMessage::Button>;

/// Asks where to save a copy and saves it. Then says how that went, with the same buttons.
void saveCopy(const Buttons& buttons) {
    const CFString* domain = unsavedDomain();
    if (!domain)
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        nullptr, QString::fromStdString(localized("Troubles", "Save a copy of the settings")),
        folder + '/' + QString::fromStdString(toUTF8(domain)) + QStringLiteral(".plist"));
    std::string text;
    if (path.isEmpty()) {
        text = filled(localized("Troubles", "Your settings aren’t saved: %1."), {whyNotSaved()});
    } else {
        const FileOutcome outcome = preferencesSaveCopy(domain, path.toStdString());
        text = outcome.trouble == FileTrouble::None
                   ? filled(localized("Troubles", "A copy of your settings is now in %1."),
                            {outcome.path})
                   : filled(localized("Troubles", "The copy couldn’t be saved: %1."),
                            {reasonOf(outcome)});
    }
    tellUser(kSaving, {.text = text, .buttons = buttons});
}

void tellOfLaunch() {
    const auto troubled = findLaunchTrouble();
    if (!troubled)
        return withdrawMessage(kLaunching);
    const std::string name =
        QFileInfo(QString::fromStdString(troubled->bundle)).completeBaseName().toStdString();
    tellUser(
        kLaunching,
        {.text = filled(troubled->trouble == LaunchTrouble::NotUp
                            ? localized("Troubles", "%1 didn’t start, so nothing is scanned now.")
                            : localized("Troubles", "%1 has ended by itself several times, so "
                                                    "nothing is scanned now."),
                        {name}),
         .buttons = {{filled(localized("Troubles", "Start %1"), {name}),
                      [bundle = troubled->bundle] { launchAgain(bundle); }}}});
}

void tellOfStateFile() {
    const FileOutcome outcome = stateFileOutcome();
    if (outcome.trouble == FileTrouble::None)
        return withdrawMessage(kCrash);
    tellUser(
        kCrash,
        {.text = filled(localized("Troubles",
                                  "Should this window crash, your last changes would be lost: %1."),
                        {reasonOf(outcome)})});
}

} // namespace

void tellOfUnusableFiles() {
    for (const CFString* domain : preferencesDomainsInUse())
        if (const std::string text = textOfUnusableFile(domain); !text.empty())
            tellUser(kFiles, {.text = text});
}

void tellOfLaunches() {
    [[maybe_unused]] static const auto& watch = *new ChangeWatch(watchLaunches(tellOfLaunch));
    tellOfLaunch();
}

void tellOfUnkeptChanges() {
    [[maybe_unused]] static const auto& watch = *new ChangeWatch(watchStateFile(tellOfStateFile));
}

std::string whyNotSaved() {
    const CFString* domain = unsavedDomain();
    return domain ? reasonOf(preferencesSaveOutcome(domain)) : std::string();
}

void tellNotSaved(std::function<void()> tryAgain, std::function<void()> leave) {
    Buttons buttons = {{localized("Troubles", "Try again"), std::move(tryAgain)},
                       {localized("Troubles", "Close anyway"), std::move(leave)}};
    UserMessage message{
        .text =
            filled(localized("Troubles",
                             "Your settings couldn’t be saved: %1. This window stays open, so that "
                             "nothing is lost."),
                   {whyNotSaved()}),
        .buttons = buttons};
    message.buttons.insert(message.buttons.begin() + 1, {localized("Troubles", "Save a copy…"),
                                                         [buttons] { saveCopy(buttons); }});
    withdrawMessage(kFiles); // it says the same
    tellUser(kSaving, std::move(message));
}

void withdrawNotSaved() {
    withdrawMessage(kSaving);
}
