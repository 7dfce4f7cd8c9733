// SPDX-License-Identifier: MIT
#include "src/commands/command.h"
#include "src/commands/json.h"
#include "src/commands/store.h"
#include "src/defaults.h"
#include "src/settingwords.h"

#include <cstdio>

namespace {

std::string storedText(const Setting& setting, const PrefsRecord& record) {
    const auto text = setting.form->write(setting.in(record));
    return text ? CFStringToUTF8(text.get()) : "";
}

/// "1 to 60 seconds", the choices, or nothing.
std::string rangeText(const Setting& setting) {
    if (const SettingLimits& limits = setting.limits; limits.maximum > 0) {
        char text[100];
        std::snprintf(text, sizeof text, "%g to %g%s%s", limits.minimum, limits.maximum,
                      *limits.unit ? " " : "", limits.unit);
        return text;
    }
    std::string choices;
    for (const char* choice : setting.choices)
        choices += (choices.empty() ? "" : ", ") + std::string(choice);
    return choices;
}

JsonObject describe(const Setting& setting, const PrefsRecord& record) {
    JsonObject object;
    object.add("key", setting.key).add("stored", storedText(setting, record));
    object.add("text", settingText(setting, record));
    if (setting.isNumber())
        object.add("value", settingNumber(setting, record));
    return object;
}

void printListJson(const PrefsRecord& now, const PrefsRecord& defaults) {
    std::string items;
    for (const Setting& setting : kSettings) {
        JsonObject object = describe(setting, now);
        object.add("name", setting.name).add("default", settingText(setting, defaults));
        object.add("range", rangeText(setting)).add("unit", setting.limits.unit);
        items += (items.empty() ? "" : ",\n ") + object.text();
    }
    std::printf("[%s]\n", items.c_str());
}

} // namespace

int runList(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    const PrefsRecord defaults = defaultRecord();
    if (line.json) {
        printListJson(now, defaults);
        return kCommandDone;
    }
    const SettingSet changed = differences(now, defaults);
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        const Setting& setting = kSettings[i];
        std::printf("%s = %s\n    %s", setting.key, settingText(setting, now).c_str(),
                    setting.name);
        if (const std::string range = rangeText(setting); !range.empty())
            std::printf(" (%s)", range.c_str());
        if (changed[i])
            std::printf("; default: %s", settingText(setting, defaults).c_str());
        std::puts("");
    }
    return kCommandDone;
}

int runGet(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    std::string items;
    for (const std::string& key : line.operands) {
        const Setting* setting = settingOfKey(key);
        if (!setting)
            return commandFailed("there is no setting \"" + key + "\"");
        if (line.json)
            items += (items.empty() ? "" : ",\n ") + describe(*setting, now).text();
        else
            items += settingText(*setting, now) + "\n";
    }
    std::fputs(line.json ? ("[" + items + "]\n").c_str() : items.c_str(), stdout);
    return kCommandDone;
}
