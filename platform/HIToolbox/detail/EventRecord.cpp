// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/EventRecord.h"

#include <algorithm>

const EventRecord::Parameter* EventRecord::find(EventParamName name, EventParamType type) const {
    const auto found =
        std::find_if(parameters_.begin(), parameters_.end(),
                     [&](const Parameter& each) { return each.name == name && each.type == type; });
    return found == parameters_.end() ? nullptr : &*found;
}

CarbonEventTarget::CarbonEventTarget() = default;

CarbonEventTarget::~CarbonEventTarget() {
    handlers_->clear();
}

EventHandlerRef CarbonEventTarget::install(EventHandlerUPP function,
                                           std::vector<EventTypeSpec> types, void* userData) {
    auto handler = std::make_unique<CarbonEventHandler>(
        CarbonEventHandler{this, function, std::move(types), userData});
    return handlers_->emplace_back(std::move(handler)).get();
}

OSStatus CarbonEventTarget::send(EventRecord& event) {
    const auto handlers = handlers_;
    for (std::size_t i = handlers->size(); i-- > 0;) {
        if (i >= handlers->size())
            continue; // some were removed meanwhile
        const CarbonEventHandler handler = *(*handlers)[i];
        if (std::find(handler.types.begin(), handler.types.end(), event.type()) ==
            handler.types.end())
            continue;
        const OSStatus result = handler.function(nullptr, &event, handler.userData);
        if (result != eventNotHandledErr)
            return result;
    }
    return eventNotHandledErr;
}

UInt32 GetEventClass(EventRef event) {
    return event->type().eventClass;
}

UInt32 GetEventKind(EventRef event) {
    return event->type().eventKind;
}

OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType,
                           EventParamType* actualType, std::size_t bufferSize,
                           std::size_t* actualSize, void* data) {
    const auto* parameter = event->find(name, desiredType);
    if (!parameter)
        return eventParameterNotFoundErr;
    const auto& bytes = parameter->bytes;
    if (actualType)
        *actualType = parameter->type;
    if (actualSize)
        *actualSize = bytes.size();
    if (data)
        std::memcpy(data, bytes.data(), std::min(bufferSize, bytes.size()));
    return noErr;
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, std::size_t count,
                             const EventTypeSpec* types, void* userData,
                             EventHandlerRef* handlerRef) {
    if (!target || !handler || count == 0)
        return paramErr;
    const EventHandlerRef installed = target->install(handler, {types, types + count}, userData);
    if (handlerRef)
        *handlerRef = installed;
    return noErr;
}

OSStatus RemoveEventHandler(EventHandlerRef handler) {
    std::erase_if(*handler->target->handlers_,
                  [handler](const auto& each) { return each.get() == handler; });
    return noErr;
}
