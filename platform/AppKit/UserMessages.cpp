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
    std::erase_if(messages, [&](const CurrentMessage& each) { return each.topic == topic; });
    messages.push_back({topic, std::move(message)});
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
    const auto alert = std::find_if(messages.rbegin(), messages.rend(), [](const auto& each) {
        return each.message.kind == UserMessage::Kind::Alert;
    });
    return alert == messages.rend() ? &messages.back() : &*alert;
}

void setMessageListener(std::function<void()> listener) {
    messageListener = std::move(listener);
}
