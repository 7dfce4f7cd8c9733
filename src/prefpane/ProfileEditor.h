// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPopUpButton.h"
#include "src/prefpane/ChoiceGrid.h"
#include "src/profiles.h"

#include <string>
#include <vector>

class NSButton;
class NSTextField;

/// Who makes the settings those of a profile.
class ProfileTarget {
public:
    /// As one change of what differs.
    virtual void adopt(const SettingSet& settings, const PrefsRecord& record) = 0;
    virtual void undoChange() = 0;
    /// Another profile is in use, or none, while the settings stay as they are.
    virtual void noteProfile() = 0;

protected:
    ~ProfileTarget() = default;
};

/// The wrangler's part for profiles: the menu in the header, which uses one at once and says which
/// is in use, and the section, which has the rest. What becomes of files is told in the strip. The
/// interface file fills the public fields; none is owned.
class ProfileEditor final : public NSMenuDelegate, public ChoiceGridSource {
public:
    NSPopUpButton* menu = nullptr;
    ChoiceGrid* grid = nullptr;
    NSPopUpButton* compareMenu = nullptr;
    NSTextField* explanation = nullptr; ///< what using the chosen one would change
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

    /// Until it is kept, only for this visit.
    void setInUse(const std::string& profile);
    /// For the next visit, too. Gives a sentence for the user when that fails.
    std::string keepInUse();

    void menuNeedsUpdate(NSPopUpButton* menu) override;
    void chooseFromMenu(const NSMenuItem& item);
    /// Has the explanation say how the chosen one differs from another, or from the settings.
    void compareWith(const NSMenuItem& item);
    void updateInUse();
    void showSection();

    // The section's buttons, for the profile that is chosen in its list.
    void useChosen();
    void updateChosen();
    void renameChosen();
    void deleteChosen();
    /// Puts a ready name into the field, or one like it that is free.
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

    /// What its file holds: once more only when that has changed.
    static void read(Profile& profile);
    /// Null when there is none of that name.
    const Profile* find(const std::string& profile) const;
    /// What using it would change.
    SettingSet changesBy(const Profile& profile) const;

    bool isChanged(const Profile& profile) const { return changesBy(profile).any(); }

    void fillMenu();
    void fillCompareMenu();
    void addItem(NSPopUpButton* to, const std::string& title, const char* action, int tag);
    std::string explanationOf(const Profile& profile) const;
    void use(Profile profile);
    void save(const std::string& profile);
    /// Whether there is one in the field; else it is asked for.
    bool hasName();
    /// Away from a button that is about to be disabled, which would hand the keyboard to the next.
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
    std::string comparedWith_; ///< another one; empty for the settings as they are
};
