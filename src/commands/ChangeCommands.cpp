// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/commands/store.h"
#include "src/record/settingcheck.h"
#include "src/store/defaults.h"

namespace {

std::size_t indexOf(const Setting* setting) {
    return static_cast<std::size_t>(setting - kSettings.data());
}

int change(const CommandLine& line, const PrefsRecord& before, const SettingSet& settings,
           const PrefsRecord& record) {
    if (const std::string fault = changeSettings(settings, record); !fault.empty())
        return commandFailed(fault);
    PrefsRecord after = before;
    copySettings(settings, record, after);
    if (line.json)
        printChangesJson(before, after);
    return kCommandDone;
}

} // namespace

int runSet(const CommandLine& line) {
    if (line.operands.size() % 2)
        return commandFailed(localized("Commands", "every key needs a value"));
    const PrefsRecord before = currentSettings();
    PrefsRecord record = before;
    SettingSet settings;
    for (std::size_t i = 0; i < line.operands.size(); i += 2) {
        const Setting* setting = settingOfKey(line.operands[i]);
        if (!setting)
            return noSuchSetting(line.operands[i]);
        const std::string fault = setFromWords(*setting, line.operands[i + 1], record);
        if (!fault.empty())
            return commandFailed(line.operands[i] + ": " + fault);
        settings[indexOf(setting)] = true;
    }
    return change(line, before, settings, record);
}

int runReset(const CommandLine& line) {
    SettingSet settings;
    for (const std::string& key : line.operands) {
        const Setting* setting = settingOfKey(key);
        if (key == "all")
            settings.set();
        else if (!setting)
            return noSuchSetting(key);
        else
            settings[indexOf(setting)] = true;
    }
    return change(line, currentSettings(), settings, defaultRecord());
}
