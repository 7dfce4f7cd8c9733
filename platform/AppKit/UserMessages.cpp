// SPDX-License-Identifier: MIT
#include "platform/AppKit/UserMessages.h"

#include <algorithm>
#include <utility>

namespace {

// Never destroyed: messages may come while the program exits.
auto& messages = *new std::vector<CurrentMessage>; ///< in the order in which they were told
auto& messageListener = *new std::function<void()>;

auto find(const std::string& topic) {
    return std::ranges::find(messages, topic, &CurrentMessage::topic);
}

void notify() {
    if (messageListener)
        messageListener();
}

} // namespace

void tellUser(const std::string& topic, UserMessage message) {
    const auto known = find(topic);
    if (known == messages.end())
        messages.push_back({topic, std::move(message)});
    else
        known->message = std::move(message);
    notify();
}

void withdrawMessage(const std::string& topic) {
    const auto known = find(topic);
    if (known == messages.end())
        return;
    messages.erase(known);
    notify();
}

const CurrentMessage* currentMessage() {
    if (messages.empty())
        return nullptr;
    const auto alert = std::ranges::find(messages, UserMessage::Kind::Alert,
                                         [](const auto& each) { return each.message.kind; });
    return alert == messages.end() ? &messages.front() : &*alert;
}

void setMessageListener(std::function<void()> listener) {
    messageListener = std::move(listener);
}
