// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/commands/json.h"
#include "src/commands/store.h"
#include "src/record/settingwords.h"
#include "src/store/defaults.h"

#include <cstdio>

namespace {

std::string storedText(const Setting& setting, const PrefsRecord& record) {
    const auto text = setting.notation->write(setting.in(record));
    return text ? toUTF8(text.get()) : "";
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
    JsonList list;
    for (const Setting& setting : kSettings) {
        JsonObject object = describe(setting, now);
        object.add("name", setting.name).add("default", settingText(setting, defaults));
        object.add("range", takenText(setting)).add("unit", setting.limits.unit);
        if (setting.limits.maximum > 0)
            object.add("min", setting.limits.minimum).add("max", setting.limits.maximum);
        list.add(object);
    }
    std::puts(list.text().c_str());
}

} // namespace

int runList(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    const PrefsRecord defaults = defaultRecord();
    if (line.json) {
        printListJson(now, defaults);
        return kCommandDone;
    }
    for (const Setting& setting : kSettings) {
        const std::string words =
            joined(Joint::Note, {localized("Settings", setting.name), takenText(setting)});
        const std::string usual =
            filled(localized("Commands", "default: %1"), {settingText(setting, defaults)});
        std::printf("%s = %s\n    %s\n", setting.key, settingText(setting, now).c_str(),
                    joined(Joint::Clauses, {words, usual}).c_str());
    }
    return kCommandDone;
}

int runGet(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    JsonList list;
    std::string texts;
    for (const std::string& key : line.operands) {
        const Setting* setting = settingOfKey(key);
        if (!setting)
            return noSuchSetting(key);
        if (line.json)
            list.add(describe(*setting, now));
        else
            texts += settingValue(*setting, now) + "\n";
    }
    std::fputs(line.json ? (list.text() + "\n").c_str() : texts.c_str(), stdout);
    return kCommandDone;
}
