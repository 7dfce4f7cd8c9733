// SPDX-License-Identifier: MIT
#include "src/pane/profiles/ProfileEditor.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMenuItem.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/record/settingwords.h"
#include "src/store/prefs.h"

#include <utility>

namespace {

constexpr std::size_t kMostTitle = 24; ///< characters of a name that the header has room for
constexpr float kTextMargin = 12;      ///< points, in a row of the list

/// The first characters of a text in UTF-8.
std::string shortened(const std::string& text) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((text[i] & 0xC0) != 0x80 && characters++ == kMostTitle)
            return text.substr(0, i) + "…";
    return text;
}

/// A text of the table "Profiles" with a profile's name in it.
std::string named(const char* text, const std::string& name) {
    return filled(localized("Profiles", text), {name});
}

void tell(const std::string& text, std::vector<UserMessage::Button> buttons = {}) {
    tellUser(kChangeTopic,
             {.kind = UserMessage::Kind::Note, .text = text, .buttons = std::move(buttons)});
}

/// True when it went well; else the reason is told.
bool succeeded(const std::string& fault, const char* text, const std::string& name) {
    if (!fault.empty())
        tellUser(kChangeTopic, {.text = filled(localized("Profiles", text), {name, fault})});
    return fault.empty();
}

constexpr char kCannotSave[] = LOCALIZABLE("Profiles", "“%1” couldn’t be saved: %2.");
constexpr char kUndo[] = LOCALIZABLE("Profiles", "Undo this");

} // namespace

ProfileEditor::~ProfileEditor() {
    withdrawMessage(kChangeTopic); // its buttons act on this object
}

void ProfileEditor::setup(NSObject& menuTarget) {
    menuTarget_ = &menuTarget;
    menu->setDelegate(this);
    compareMenu->setDelegate(this);
    grid->setSource(this);
}

void ProfileEditor::load() {
    std::vector<Profile> now;
    for (const std::string& each : profileNames()) {
        const Profile* known = find(each);
        now.push_back(known ? *known : Profile{each, {}, {}});
        read(now.back());
    }
    profiles_ = std::move(now);
    if (isInUseKept_ || !find(inUse_))
        inUse_ = currentProfile();
    if (!find(chosen_))
        chosen_ = inUse_.empty() && !profiles_.empty() ? profiles_.front().name : inUse_;
    show();
}

void ProfileEditor::read(Profile& profile) {
    const ProfileStamp stamp = profileStamp(profile.name);
    if (std::exchange(profile.stamp, stamp) != stamp)
        profile.offer = readProfile(profile.name, prefs);
}

void ProfileEditor::show() {
    showMenuTitle();
    showChosen();
}

void ProfileEditor::setInUse(const std::string& profile) {
    inUse_ = find(profile) ? profile : "";
    chosen_ = inUse_.empty() ? chosen_ : inUse_;
}

std::string ProfileEditor::keepInUse() {
    const std::string fault = setCurrentProfile(inUse_);
    isInUseKept_ = fault.empty();
    return fault.empty()
               ? ""
               : filled(localized("Profiles", "Which profile is in use can’t be kept: %1."),
                        {fault});
}

const ProfileEditor::Profile* ProfileEditor::find(const std::string& profile) const {
    for (const Profile& each : profiles_)
        if (each.name == profile)
            return &each;
    return nullptr;
}

SettingSet ProfileEditor::changesBy(const Profile& profile) const {
    return profile.offer.settings & differences(prefs, profile.offer.record);
}

// The menu in the header

void ProfileEditor::showMenuTitle() {
    const Profile* profile = find(inUse_);
    if (!profile) {
        const std::string title = localized("Profiles", "Profiles");
        menu->setTitle(title, title);
        menu->setAccessibilityLabel(title);
        return;
    }
    const bool changed = isChanged(*profile);
    const std::string title = shortened(inUse_);
    menu->setTitle(changed ? named(LOCALIZABLE("Profiles", "%1, changed"), title) : title,
                   changed ? title + " *" : title);
    menu->setAccessibilityLabel(named(changed ? LOCALIZABLE("Profiles", "Profile: %1, changed")
                                              : LOCALIZABLE("Profiles", "Profile: %1"),
                                      inUse_));
}

void ProfileEditor::menuNeedsUpdate(NSPopUpButton* opening) {
    load();
    opening->removeAllItems();
    if (opening == menu)
        fillMenu();
    else
        fillCompareMenu();
}

void ProfileEditor::fillMenu() {
    bool isInUseChanged = false;
    for (int i = 0; i < choiceCount(); ++i) {
        const Profile& profile = profiles_[static_cast<std::size_t>(i)];
        if (profile.name != inUse_) {
            addItem(menu, named(LOCALIZABLE("Profiles", "Use “%1”"), profile.name),
                    "chooseProfile:", i);
            continue;
        }
        isInUseChanged = isChanged(profile);
        if (isInUseChanged)
            addItem(menu, named(LOCALIZABLE("Profiles", "Back to “%1”"), inUse_),
                    "chooseProfile:", i);
        else
            addItem(menu, named(LOCALIZABLE("Profiles", "“%1” is in use"), inUse_), nullptr, i);
    }
    if (isInUseChanged)
        addItem(menu, named(LOCALIZABLE("Profiles", "Save the changes in “%1”"), inUse_),
                "keepProfile:", 0);
    addItem(menu,
            profiles_.empty() ? localized("Profiles", "Save a profile…")
                              : localized("Profiles", "Save, rename, delete…"),
            "showProfiles:", 0);
}

/// The settings as they are have the tag 0, profiles one more than their place.
void ProfileEditor::fillCompareMenu() {
    addItem(compareMenu, localized("Profiles", "The settings as they are"), "compareProfile:", 0);
    for (int i = 0; i < choiceCount(); ++i)
        if (const Profile& profile = profiles_[static_cast<std::size_t>(i)];
            profile.name != chosen_)
            addItem(compareMenu, named(LOCALIZABLE("Profiles", "“%1”"), profile.name),
                    "compareProfile:", i + 1);
}

void ProfileEditor::addItem(NSPopUpButton* to, const std::string& title, const char* action,
                            int tag) {
    to->addItemWithTitle(title);
    NSMenuItem* item = to->itemWithTitle(title);
    item->setTag(tag);
    item->setTarget(menuTarget_);
    item->setAction(action ? menuTarget_->selector(action) : nullptr);
}

void ProfileEditor::chooseFromMenu(const NSMenuItem& item) {
    if (item.tag() < choiceCount())
        use(profiles_[static_cast<std::size_t>(item.tag())]);
}

void ProfileEditor::compareWith(const NSMenuItem& item) {
    comparedWith_ = item.tag() > 0 && item.tag() <= choiceCount()
                        ? profiles_[static_cast<std::size_t>(item.tag() - 1)].name
                        : "";
    showChosen();
}

void ProfileEditor::updateInUse() {
    save(inUse_);
}

void ProfileEditor::showSection() {
    grid->scrollToVisible();
    if (profiles_.empty())
        name->window().makeFirstResponder(name);
    else
        grid->window().makeFirstResponder(grid);
}

void ProfileEditor::leaveButtons() {
    for (NSButton* button : {useBtn, updateBtn, renameBtn, deleteBtn})
        if (button->isFirstResponder())
            return showSection();
}

// The list

std::string ProfileEditor::choiceName(int index) const {
    const Profile& profile = profiles_[static_cast<std::size_t>(index)];
    if (profile.name != inUse_)
        return profile.name;
    return named(isChanged(profile) ? LOCALIZABLE("Profiles", "%1, in use, changed")
                                    : LOCALIZABLE("Profiles", "%1, in use"),
                 inUse_);
}

bool ProfileEditor::isChosen(int index) const {
    return profiles_[static_cast<std::size_t>(index)].name == chosen_;
}

void ProfileEditor::drawChoice(int index, const Rect& bounds) const {
    const NSRect row = {static_cast<float>(bounds.left), static_cast<float>(bounds.top),
                        static_cast<float>(bounds.right - bounds.left),
                        static_cast<float>(bounds.bottom - bounds.top)};
    NSDrawString(createFromUTF8(choiceName(index)).get(), NSInsetRect(row, kTextMargin, 0),
                 {NSFont::systemFontOfSize(0)});
}

void ProfileEditor::choose(int index) {
    chosen_ = profiles_[static_cast<std::size_t>(index)].name;
    showChosen();
}

void ProfileEditor::showChosen() {
    grid->setHidden(profiles_.empty());
    grid->reload();
    const Profile* profile = find(chosen_);
    const SettingSet changes = profile ? changesBy(*profile) : SettingSet();
    leaveButtons();
    for (NSButton* button : {useBtn, updateBtn})
        button->setEnabled(changes.any());
    for (NSButton* button : {renameBtn, deleteBtn})
        button->setEnabled(profile != nullptr);
    compareMenu->setEnabled(profiles_.size() > 1);
    const std::string fault = profiles_.empty() ? profilesFault() : "";
    explanation->setStringValue(
        profile ? explanationOf(*profile)
        : !fault.empty()
            ? filled(localized("Profiles", "Your profiles can’t be read: %1."), {fault})
            : localized("Profiles", "There is no profile yet. Save the settings as they are "
                                    "now, and come back to them with the Profiles menu."));
}

/// What would change if it were used now, or after the one that it is compared with.
std::string ProfileEditor::explanationOf(const Profile& profile) const {
    const Profile* other = comparedWith_ == profile.name ? nullptr : find(comparedWith_);
    PrefsRecord before = prefs, after = prefs;
    if (other)
        copySettings(other->offer.settings, other->offer.record, before);
    copySettings(profile.offer.settings, profile.offer.record, after);
    const SettingSet changes = differences(before, after);
    const std::initializer_list<std::string> names = {profile.name, comparedWith_};
    std::string text = filled(
        changes.none() ? other ? localized("Profiles", "“%1” and “%2” have the same settings.")
                               : localized("Profiles", "The settings are those of “%1”.")
        : other ? localized("Profiles", "“%1” in place of “%2” would change:")
                       : localized("Profiles", "“%1” would change:"),
        names);
    return text + changeLines(changes, before, after);
}

// What is done with a profile

void ProfileEditor::useChosen() {
    if (const Profile* profile = find(chosen_))
        use(*profile);
}

void ProfileEditor::use(Profile profile) {
    read(profile);
    const auto& [record, settings, refused, error] = profile.offer;
    if (!succeeded(error, LOCALIZABLE("Profiles", "“%1” can’t be used: %2."), profile.name))
        return;
    const PrefsRecord before = prefs;
    const SettingSet changes = settings & differences(before, record);
    setInUse(profile.name);
    target_.adopt(changes, record);
    target_.noteProfile();
    const std::string notKept = keepInUse(); // the agent need not wait for the disk
    show();
    std::vector texts = {named(LOCALIZABLE("Profiles", "“%1” is in use."), profile.name)};
    if (changes.any())
        texts.push_back(filled(localized("Changes", "%1.", "a sentence"),
                               {changesText(changes, before, record, kSettingBecomes)}));
    if (!refused.empty())
        texts.push_back(filled(localized("Profiles", "Left out: %1: %2."),
                               {refused[0].key, refused[0].reason}));
    texts.push_back(notKept);
    const std::string text = joined(Joint::Sentences, texts);
    if (changes.none())
        return tell(text);
    tellUse(text,
            changes.count() > 1
                ? named(LOCALIZABLE("Profiles", "“%1” is in use. It has changed:"), profile.name) +
                      changeLines(changes, before, record)
                : "");
}

/// With a button for `all`, everything that has changed, unless it is empty.
void ProfileEditor::tellUse(const std::string& text, const std::string& all) {
    std::vector<UserMessage::Button> buttons = {
        {localized("Profiles", kUndo), [this] { target_.undoChange(); }}};
    if (!all.empty())
        buttons.push_back({localized("Profiles", "Show all"), [this, all] { tellUse(all, ""); }});
    tell(text, std::move(buttons));
}

void ProfileEditor::updateChosen() {
    save(chosen_);
}

void ProfileEditor::saveNew() {
    if (hasName())
        save(typedName());
}

std::string ProfileEditor::typedName() const {
    const std::string text = name->stringValue();
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string::npos ? ""
                                      : text.substr(start, text.find_last_not_of(' ') - start + 1);
}

bool ProfileEditor::hasName() {
    if (!typedName().empty())
        return true;
    tell(localized("Profiles", "First type a name, or press one of the ready ones."));
    name->window().makeFirstResponder(name);
    return false;
}

/// Over one of the same name, too, which can be put back.
void ProfileEditor::save(const std::string& profile) {
    const Profile* known = find(profile);
    const std::vector<Profile> former(known, known ? known + 1 : known);
    const bool wasInUse = inUse_ == profile;
    if (!succeeded(::saveProfile(profile, prefs), kCannotSave, profile))
        return;
    name->setStringValue("");
    load();
    setInUse(profile);
    show();
    target_.noteProfile();
    const std::string text = joined(
        Joint::Sentences,
        {named(LOCALIZABLE("Profiles", "The settings are saved as “%1”."), profile), keepInUse()});
    if (former.empty())
        return tell(text);
    tell(text, {{localized("Profiles", kUndo),
                 [this, former, wasInUse] { putBack(former[0], wasInUse); }}});
}

/// Gives a profile the settings again that it had.
void ProfileEditor::putBack(const Profile& profile, bool wasInUse) {
    const auto& [record, settings, refused, error] = profile.offer;
    if (!succeeded(::saveProfile(profile.name, record, settings), kCannotSave, profile.name))
        return;
    load();
    if (wasInUse)
        setInUse(profile.name);
    chosen_ = profile.name;
    show();
    target_.noteProfile();
    tell(joined(Joint::Sentences,
                {named(LOCALIZABLE("Profiles", "“%1” is as it was."), profile.name), keepInUse()}));
}

void ProfileEditor::renameChosen() {
    const std::string old = chosen_, now = typedName();
    if (!hasName() || !succeeded(::renameProfile(old, now),
                                 LOCALIZABLE("Profiles", "“%1” couldn’t be renamed: %2."), old))
        return;
    chosen_ = now;
    name->setStringValue("");
    load();
    target_.noteProfile();
    tell(filled(localized("Profiles", "“%1” is now called “%2”."), {old, now}));
}

void ProfileEditor::deleteChosen() {
    const Profile* known = find(chosen_);
    if (!known)
        return;
    const Profile former = *known;
    const bool wasInUse = inUse_ == former.name;
    if (!succeeded(::deleteProfile(former.name),
                   LOCALIZABLE("Profiles", "“%1” couldn’t be deleted: %2."), former.name))
        return;
    load();
    target_.noteProfile();
    tell(named(LOCALIZABLE("Profiles", "“%1” is deleted. The settings stay as they are."),
               former.name),
         {{localized("Profiles", kUndo), [this, former, wasInUse] { putBack(former, wasInUse); }}});
}

void ProfileEditor::suggestName(const NSButton& sender) {
    name->setStringValue(freeProfileName(sender.title()));
}
