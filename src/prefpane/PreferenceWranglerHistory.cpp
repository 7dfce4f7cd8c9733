#include "src/prefpane/PreferenceWrangler.h"

#include "src/recovery.h"

#include <chrono>

namespace {

double secondsNow() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

} // namespace

void PreferenceWrangler::beginHistory() {
    history_ = History(prefs);
}

void PreferenceWrangler::noteStep() {
    history_.note(prefs, secondsNow());
}

void PreferenceWrangler::adopt(const SettingSet& settings, const PrefsRecord& record) {
    const SettingSet different = settings & differences(prefs, record);
    if (different.none())
        return;
    copySettings(different, record, prefs);
    showAndReport(changesOf(different));
}

void PreferenceWrangler::undo(NSButton*) {
    if (const HistoryStep* step = history_.undo(prefs))
        showAndReport(changesOf(step->settings));
}

void PreferenceWrangler::redo(NSButton*) {
    if (const HistoryStep* step = history_.redo(prefs))
        showAndReport(changesOf(step->settings));
}

void PreferenceWrangler::showAndReport(ChangeMask changes) {
    loadValues();
    if (changes & kChangeLaunch)
        updateLaunchUI();
    changed(changes);
    if (prefsAreAsStored()) {
        prefsWerentChanged();
        recoveryForget();
    }
}
