// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/CarbonEvents.h"

#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

/// An event, as those make it who send it.
class EventRecord {
public:
    EventRecord(OSType eventClass, UInt32 eventKind) : type_{eventClass, eventKind} {}

    const EventTypeSpec& type() const { return type_; }

    /// Adds a parameter of the value's bytes; one name once.
    template <class T>
    EventRecord& with(EventParamName name, EventParamType type, const T& value) {
        static_assert(std::is_trivially_copyable_v<T>);
        std::vector<std::byte> bytes(sizeof value);
        std::memcpy(bytes.data(), &value, sizeof value);
        parameters_.push_back({name, type, std::move(bytes)});
        return *this;
    }

    struct Parameter {
        EventParamName name;
        EventParamType type;
        std::vector<std::byte> bytes;
    };

    /// Null when there is none of that name and type.
    const Parameter* find(EventParamName name, EventParamType type) const;

private:
    EventTypeSpec type_;
    std::vector<Parameter> parameters_;
};

/// What events are sent to: the handlers of one window or control.
class CarbonEventTarget {
public:
    CarbonEventTarget();
    /// May happen while a handler runs; none is called after it.
    ~CarbonEventTarget();
    CarbonEventTarget(const CarbonEventTarget&) = delete;
    CarbonEventTarget& operator=(const CarbonEventTarget&) = delete;

    /// The handler, until it is removed or the target goes.
    EventHandlerRef install(EventHandlerUPP function, std::vector<EventTypeSpec> types,
                            void* userData);

    /// Calls the handlers for the event's type, newest first, until one returns something else than
    /// eventNotHandledErr. Gives the last one's result; without any, eventNotHandledErr.
    OSStatus send(EventRecord& event);

private:
    friend OSStatus RemoveEventHandler(EventHandlerRef);

    using Handlers = std::vector<std::unique_ptr<CarbonEventHandler>>;

    /// Shared with the sends that are under way.
    std::shared_ptr<Handlers> handlers_ = std::make_shared<Handlers>();
};

/// A handler that is installed on a target.
struct CarbonEventHandler {
    CarbonEventTarget* target;
    EventHandlerUPP function;
    std::vector<EventTypeSpec> types;
    void* userData;
};
