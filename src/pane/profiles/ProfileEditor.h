// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPopUpButton.h"
#include "src/controls/ChoiceGrid.h"
#include "src/store/profiles.h"

#include <string>
#include <vector>

class NSButton;
class NSTextField;

/// Changes the settings for the ProfileEditor.
class ProfileTarget {
public:
    /// Sets those that differ, as one change.
    virtual void adopt(const SettingSet& settings, const PrefsRecord& record) = 0;
    /// Sets the settings to what a file offers, and says so with a button that undoes it.
    virtual void takeImport(const SettingsOffer& offer) = 0;
    virtual void undoChange() = 0;
    /// Another profile is in use now, or none. The settings are the same.
    virtual void noteProfile() = 0;

protected:
    ~ProfileTarget() = default;
};

/// The wrangler's part for profiles. The menu in the header shows which profile is in use, and uses
/// another at once. The section has everything else. The strip tells whether files could be read
/// and written. The interface file sets the public fields. None is owned.
class ProfileEditor final : public NSMenuDelegate, public ChoiceGridSource {
public:
    NSPopUpButton* menu = nullptr;
    ChoiceGrid* grid = nullptr;
    NSPopUpButton* compareMenu = nullptr;
    NSTextField* explanation = nullptr; ///< what the chosen one would change
    NSTextField* name = nullptr;        ///< for a new one, or for the chosen one
    NSButton* useBtn = nullptr;
    NSButton* updateBtn = nullptr;
    NSButton* renameBtn = nullptr;
    NSButton* deleteBtn = nullptr;

    /// Not owned.
    explicit ProfileEditor(ProfileTarget& target) : target_(target) {}

    ~ProfileEditor() override;

    /// The menu's items send their actions to `menuTarget`; not owned.
    void setup(NSObject& menuTarget);
    /// Reads all profiles and which one is in use, and shows them.
    void load();
    /// Brings what depends on the settings up to date.
    void show();

    /// The profile in use; empty for none.
    const std::string& inUse() const { return inUse_; }

    /// For this visit only, until keepInUse().
    void setInUse(const std::string& profile);
    /// Stores it for the next visit. Returns a sentence for the user if that fails.
    std::string keepInUse();

    void menuNeedsUpdate(NSPopUpButton* menu) override;
    void chooseFromMenu(const NSMenuItem& item);
    /// Explains how the chosen one differs from another one, or from the settings.
    void compareWith(const NSMenuItem& item);
    void updateInUse();
    void showSection();

    // The section's buttons, for the profile that is chosen in its list.
    void useChosen();
    void updateChosen();
    void renameChosen();
    void deleteChosen();
    /// Puts a ready name into the field. If it is taken, a number is added.
    void suggestName(const NSButton& sender);
    /// Saves the settings under the name in the field.
    void saveNew();

    int choiceCount() const override { return static_cast<int>(profiles_.size()); }

    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    void choose(int index) override;

    bool isList() const override { return true; }

private:
    struct Profile {
        std::string name;
        ProfileStamp stamp;
        SettingsOffer offer;
    };

    /// Reads its file, if that has changed since it was read.
    static void read(Profile& profile);
    /// Null when there is none of that name.
    const Profile* find(const std::string& profile) const;
    /// What it would change.
    SettingSet changesBy(const Profile& profile) const;

    bool isChanged(const Profile& profile) const { return changesBy(profile).any(); }

    void fillMenu();
    void fillCompareMenu();
    void addItem(NSPopUpButton* to, const std::string& title, const char* action, int tag);
    std::string explanationOf(const Profile& profile) const;
    void use(Profile profile);
    void tellUse(const std::string& text, const std::string& all);
    void save(const std::string& profile);
    /// The field's text, without blanks at its ends.
    std::string typedName() const;
    /// Whether there is a name in the field. Asks the user for one if not.
    bool hasName();
    /// Moves the focus away from a button that is about to be disabled. It would go to the next
    /// button.
    void leaveButtons();
    void putBack(const Profile& profile, bool wasInUse);
    void showMenuTitle();
    void showChosen();

    ProfileTarget& target_;
    NSObject* menuTarget_ = nullptr;
    std::vector<Profile> profiles_; ///< as last read
    std::string inUse_;
    bool isInUseKept_ = true;
    std::string chosen_;       ///< in the list
    std::string comparedWith_; ///< another profile; empty for the current settings
};
