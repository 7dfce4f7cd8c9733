// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

// What a program has to tell its user without standing in the way: the host shows it in a strip at
// the bottom of its window, one message at a time, alerts first. No operation of the platform. Main
// thread only; texts are UTF-8.

struct UserMessage {
    struct Button {
        std::string label;
        std::function<void()> press; ///< called after the message has been withdrawn
    };

    enum class Kind {
        Alert, ///< something is wrong: screen readers read it out at once
        Note,
    };

    Kind kind = Kind::Alert;
    std::string text = {}; ///< in words, one or two sentences
    std::vector<Button> buttons =
        {}; ///< beside the one that every message has, which only withdraws it
};

/// Tells the message, in place of an earlier one of the same topic. The same text again changes
/// nothing for who has read it.
void tellUser(const std::string& topic, UserMessage message);

/// Takes the topic's message away; without one, nothing.
void withdrawMessage(const std::string& topic);

struct CurrentMessage {
    std::string topic;
    UserMessage message;
};

/// For the host: the message to show, borrowed until the next change; null when there is none.
const CurrentMessage* currentMessage();

/// For the host: called whenever currentMessage may be another one. There is one listener.
void setMessageListener(std::function<void()> listener);
