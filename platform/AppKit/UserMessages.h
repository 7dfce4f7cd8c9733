// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

// Messages to the user that don't interrupt. The host shows them in a strip at the bottom of its
// window, one at a time: the last alert, or without one the last note. macOS has no such operation.
// Main thread only; texts are UTF-8.

struct UserMessage {
    struct Button {
        std::string label;
        std::function<void()> press; ///< called after the message has been withdrawn
    };

    enum class Kind {
        Alert, ///< something is wrong: screen readers say it at once
        Note,
    };

    Kind kind = Kind::Alert;
    std::string text = {};            ///< in words, one or two sentences
    std::vector<Button> buttons = {}; ///< besides the one that only closes the message
};

/// Shows the message in place of an earlier one of the same topic. The same text again isn't
/// announced again.
void tellUser(const std::string& topic, UserMessage message);

/// Removes the topic's message, if there is one.
void withdrawMessage(const std::string& topic);

struct CurrentMessage {
    std::string topic;
    UserMessage message;
};

/// For the host: the message to show. Borrowed until the next change; null when there is none.
const CurrentMessage* currentMessage();

/// For the host: called whenever currentMessage may have changed. There is one listener.
void setMessageListener(std::function<void()> listener);
