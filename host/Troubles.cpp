// SPDX-License-Identifier: MIT
#include "host/Troubles.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "platform/CoreServices/LaunchTrouble.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstring>

namespace {

constexpr char kFiles[] = "files";
constexpr char kSaving[] = "saving";
constexpr char kLaunching[] = "launching";

std::string translated(const char* text) {
    return QCoreApplication::translate("Troubles", text).toStdString();
}

/// The text with a path, or another name, in the place of its %1.
std::string filled(const char* text, const std::string& name) {
    return QCoreApplication::translate("Troubles", text)
        .arg(QString::fromStdString(name))
        .toStdString();
}

std::string reasonOf(const PreferencesOutcome& outcome) {
    switch (outcome.trouble) {
    case FileTrouble::None:
        return {};
    case FileTrouble::Damaged:
        return filled("%1 is damaged", outcome.path);
    case FileTrouble::NotAllowed:
        return filled("no permission for %1", outcome.path);
    case FileTrouble::ReadOnly:
        return filled("%1 can only be read", outcome.path);
    case FileTrouble::Full:
        return translated("the disk is full");
    case FileTrouble::InUse:
        return translated("another program is using the file");
    case FileTrouble::InTheWay:
        return filled("%1 is something else than expected", outcome.path);
    case FileTrouble::TooLarge:
        return filled("%1 would become too large", outcome.path);
    case FileTrouble::Failed:
        break;
    }
    return outcome.path + ": " + std::strerror(outcome.error);
}

/// Empty when the domain's file can be read and written.
std::string textOfUnusableFile(const CFString* domain) {
    const PreferencesOutcome load = preferencesLoadOutcome(domain);
    if (load.trouble == FileTrouble::Damaged)
        return filled(load.isKeptAside
                          ? "Your settings file was damaged and is kept as %1. The usual settings "
                            "are shown instead."
                          : "Your settings file %1 is damaged. The usual settings are shown "
                            "instead; the file will be kept beside the new one.",
                      load.path);
    if (load.trouble != FileTrouble::None)
        return filled("Your settings can’t be read: %1. The usual settings are shown instead.",
                      reasonOf(load));
    const PreferencesOutcome outlook = preferencesSaveOutlook(domain);
    if (outlook.trouble != FileTrouble::None)
        return filled("What you change here can’t be saved: %1.", reasonOf(outlook));
    return {};
}

/// The first of the domains with values that aren't saved; null when there is none.
const CFString* unsavedDomain() {
    for (const CFString* domain : preferencesDomainsInUse())
        if (preferencesAreUnsaved(domain))
            return domain;
    return nullptr;
}

using Buttons = std::vector<UserMessage::Button>;

/// Asks for a place and saves a copy there; then tells how that went, with the same buttons.
void saveCopy(const Buttons& buttons) {
    const CFString* domain = unsavedDomain();
    if (!domain)
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        nullptr, QCoreApplication::translate("Troubles", "Save a copy of the settings"),
        folder + '/' + QString::fromStdString(CFStringToUTF8(domain)) + QStringLiteral(".plist"));
    std::string text;
    if (path.isEmpty()) {
        text = filled("Your settings aren’t saved: %1.", whyNotSaved());
    } else {
        const PreferencesOutcome outcome = preferencesSaveCopy(domain, path.toStdString());
        text = outcome.trouble == FileTrouble::None
                   ? filled("A copy of your settings is now in %1.", outcome.path)
                   : filled("The copy couldn’t be saved: %1.", reasonOf(outcome));
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
                            ? "%1 didn’t start, so nothing is scanned now."
                            : "%1 has ended by itself several times, so nothing is scanned now.",
                        name),
         .buttons = {
             {filled("Start %1", name), [bundle = troubled->bundle] { launchAgain(bundle); }}}});
}

} // namespace

void tellOfUnusableFiles() {
    for (const CFString* domain : preferencesDomainsInUse())
        if (const std::string text = textOfUnusableFile(domain); !text.empty())
            tellUser(kFiles, {.text = text});
}

void tellOfLaunches() {
    setLaunchTroubleListener(tellOfLaunch);
    tellOfLaunch();
}

std::string whyNotSaved() {
    const CFString* domain = unsavedDomain();
    return domain ? reasonOf(preferencesSaveOutcome(domain)) : std::string();
}

void tellNotSaved(std::function<void()> tryAgain, std::function<void()> leave) {
    Buttons buttons = {{translated("Try again"), std::move(tryAgain)},
                       {translated("Close anyway"), std::move(leave)}};
    UserMessage message{
        .text = filled("Your settings couldn’t be saved: %1. This window stays open, so that "
                       "nothing is lost.",
                       whyNotSaved()),
        .buttons = buttons};
    message.buttons.insert(message.buttons.begin() + 1,
                           {translated("Save a copy…"), [buttons] { saveCopy(buttons); }});
    withdrawMessage(kFiles); // it says the same
    tellUser(kSaving, std::move(message));
}

void withdrawNotSaved() {
    withdrawMessage(kSaving);
}
