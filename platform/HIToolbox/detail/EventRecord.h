// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/CarbonEvents.h"

#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

/// An event, as its sender makes it.
class EventRecord {
public:
    EventRecord(OSType eventClass, UInt32 eventKind) : type_{eventClass, eventKind} {}

    const EventTypeSpec& type() const { return type_; }

    /// Adds a parameter with the value's bytes. Each name once.
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

    /// Null when there is none with that name and type.
    const Parameter* find(EventParamName name, EventParamType type) const;

private:
    EventTypeSpec type_;
    std::vector<Parameter> parameters_;
};

/// A target of events: the handlers of one window or control.
class CarbonEventTarget {
public:
    CarbonEventTarget();
    /// May run while a handler runs. No further handler is called.
    ~CarbonEventTarget();
    CarbonEventTarget(const CarbonEventTarget&) = delete;
    CarbonEventTarget& operator=(const CarbonEventTarget&) = delete;

    /// The handler stays until it is removed or the target goes.
    EventHandlerRef install(EventHandlerUPP function, std::vector<EventTypeSpec> types,
                            void* userData);

    /// Calls the handlers for the event's type, newest first, until one returns something else than
    /// eventNotHandledErr. Returns the last result, or eventNotHandledErr without a handler.
    OSStatus send(EventRecord& event);

private:
    friend OSStatus RemoveEventHandler(EventHandlerRef);

    using Handlers = std::vector<std::unique_ptr<CarbonEventHandler>>;

    /// Sends that are under way share it.
    std::shared_ptr<Handlers> handlers_ = std::make_shared<Handlers>();
};

/// A handler that is installed on a target.
struct CarbonEventHandler {
    CarbonEventTarget* target;
    EventHandlerUPP function;
    std::vector<EventTypeSpec> types;
    void* userData;
};
