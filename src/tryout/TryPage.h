// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSNib.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/EventTimers.h"
#include "src/tryout/HeldKeyboard.h"
#include "src/tryout/TryView.h"
#include "src/tryout/history.h"
#include "src/tryout/suggestions.h"
#include "src/tryout/tryconditions.h"

#include <optional>

class HistoryView;
class NSButton;
class NSTextField;

/// Takes the advice.
class TryPageTarget {
public:
    /// Sets the setting to that value, a time in seconds, like any other edit.
    virtual void takeTime(const Setting& setting, double seconds) = 0;

protected:
    ~TryPageTarget() = default;
};

/// The page "Find my speed". It sweeps a line with the settings of `prefs`, leads through the
/// sweeps, says what they show, and adds the try to the history. It changes no setting by itself.
class TryPage final : public NSObject, public TryViewTarget {
public:
    /// The target isn't owned.
    TryPage(NSWindow window, TryPageTarget& target);
    ~TryPage() override;

    /// Shows the page in place of the window's content, from the form at `path`. False when that
    /// can't be loaded; `errors` then has the reasons.
    bool show(const std::string& path, std::vector<std::string>& errors);

    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;

    void pressed(double moment) override;
    void released(double moment) override;
    void acted(double moment) override;
    void left() override;

    void leave(NSButton* sender);
    void toggleFullScreen(NSButton* sender);
    void takeAdvice(NSButton* sender);
    void takeSuggestion(NSButton* sender);
    void startAgain(NSButton* sender);
    void makeTargetSmaller(NSButton* sender);
    void makeTargetLarger(NSButton* sender);
    void takePaletteTarget(NSButton* sender);
    void exportHistory(NSButton* sender);
    void deleteHistory(NSButton* sender);

private:
    void frame();
    void awaitPresses();
    void startTry();
    void makeSession();
    bool hasBegun() const;
    /// Updates the page for the session's phase.
    void showPhase();
    void showCourse();
    /// What is said when no press comes.
    void showQuiet(double now);
    void write(const std::string& text);
    /// Writes the text and makes a screen reader say it.
    void say(const std::string& text);
    /// After a rest a press only continues the try. True if this one did.
    bool wakesUp(double moment);

    // TryPageResult.cpp: the result of a try, what follows from it, and earlier tries
    void showResult();
    void showSuggestion();
    /// False when the try couldn't be stored.
    bool keep(const tryout::Advice& advice, const tryout::Measured& measured);
    void keepUnfinished();
    void showTarget();
    void setTarget(tryout::TargetChoice choice);
    void showHistory(const std::string& note);
    void close();

    NSNib nib_;
    NSWindow window_;
    TryPageTarget& target_;
    EventLoopTimerRef timer_ = nullptr;
    bool isLeft_ = false;
    bool madeFullScreen_ = false;

    tryout::Conditions conditions_; ///< what the try is made with, on the whole screen
    tryout::Trigger trigger_;
    std::optional<tryout::Session> session_;
    std::optional<tryout::Session::Phase> shownPhase_;
    float sessionHeight_ = 0; ///< of the view, when the session was made
    tryout::Earlier earlier_;
    double advised_ = 0; ///< seconds
    std::optional<tryout::Suggestion> suggestion_;
    tryout::TargetChoice targetChoice_;
    HeldKeyboard keyboard_;
    tryout::History history_;

    TryView* tryView_ = nullptr;
    HistoryView* historyView_ = nullptr;
    NSTextField* course_ = nullptr;
    NSTextField* numbers_ = nullptr;
    NSTextField* historyNote_ = nullptr;
    NSButton* takeBtn_ = nullptr;
    NSButton* keepBtn_ = nullptr;
    NSButton* againBtn_ = nullptr;
    NSButton* suggestionBtn_ = nullptr;
    NSTextField* targetText_ = nullptr;
    NSButton* targetSmallerBtn_ = nullptr;
    NSButton* targetLargerBtn_ = nullptr;
    NSButton* paletteTargetBtn_ = nullptr;
    NSButton* fullScreenBtn_ = nullptr;
    NSButton* leaveBtn_ = nullptr;
    NSButton* exportBtn_ = nullptr;
    NSButton* deleteBtn_ = nullptr;
};

/// Opens the page in the window. Does nothing while it is open, or without its form.
void tryPageOpen(const CFBundle* bundle, NSWindow window, TryPageTarget& target);

/// Closes the page, if it is open.
void tryPageClose();
