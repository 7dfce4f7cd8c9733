// SPDX-License-Identifier: MIT
#include "src/pane/profiles/SettingsFiles.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSSavePanel.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/record/settingwords.h"
#include "src/store/prefs.h"
#include "src/store/settingsfile.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kMostNamed = 6; ///< keys that a message lists

std::string fileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

/// "Left out: scanner.mode: no setting of this version; …"
std::string refusedText(const std::vector<RefusedKey>& refused) {
    std::string text;
    for (std::size_t i = 0; i < std::min(refused.size(), kMostNamed); ++i)
        text += "\n" + filled(localized("Profiles", "Left out: %1: %2."),
                              {refused[i].key, refused[i].reason});
    if (refused.size() > kMostNamed)
        text =
            joined(Joint::Sentences, {text, filled(localized("Profiles", "And %1 more."),
                                                   {std::to_string(refused.size() - kMostNamed)})});
    return text;
}

void offerFile(const std::string& path, ProfileTarget& target) {
    const SettingsOffer offer = readSettingsFile(path, prefs);
    const SettingSet changes = differences(prefs, offer.record);
    if (!offer.error.empty())
        return tellUser(kChangeTopic,
                        {.text = filled(localized("Profiles", "“%1” can’t be used: %2."),
                                        {fileName(path), offer.error})});
    UserMessage message{.kind = UserMessage::Kind::Note};
    if (changes.none()) {
        message.text = filled(localized("Profiles", "Nothing in “%1” differs from the settings."),
                              {fileName(path)});
    } else {
        message.text = filled(localized("Profiles", "“%1” would change:"), {fileName(path)}) +
                       changeLines(changes, prefs, offer.record);
        message.buttons = {
            {localized("Profiles", "Use them"), [offer, &target] { target.takeImport(offer); }},
            {localized("Profiles", "Keep mine"), {}}};
    }
    message.text += refusedText(offer.refused);
    tellUser(kChangeTopic, std::move(message));
}

} // namespace

SettingsFiles::~SettingsFiles() {
    withdrawMessage(kChangeTopic); // its button acts on the target
}

void SettingsFiles::importSettings(NSButton* sender) {
    NSOpenPanel panel;
    panel.setTitle(localized("Profiles", "Import settings"));
    panel.beginSheetModalForWindow(sender->window(),
                                   [this](const std::string& path) { offerFile(path, target_); });
}

void SettingsFiles::exportSettings(NSButton* sender) {
    NSSavePanel panel;
    panel.setTitle(localized("Profiles", "Export settings"));
    panel.setNameFieldStringValue("Korvex.plist");
    panel.beginSheetModalForWindow(sender->window(), [](const std::string& path) {
        const int error = writeSettingsFile(path, SettingSet().set(), prefs);
        tellUser(
            kChangeTopic,
            {.kind = error ? UserMessage::Kind::Alert : UserMessage::Kind::Note,
             .text = error ? filled(localized("Profiles", "“%1” couldn’t be saved: %2."),
                                    {path, std::strerror(error)})
                           : filled(localized("Profiles", "The settings are now in %1."), {path})});
    });
}
