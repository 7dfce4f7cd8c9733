// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventHandlers.h"

#include <map>
#include <utility>

namespace {

using HandlerKey = std::pair<AEEventClass, AEEventID>;

struct InstalledHandler {
    AEEventHandler handler;
    void* refCon;
};

/// The application's handlers. Lives as long as the program: the link to the agent is closed at
/// exit.
std::map<HandlerKey, InstalledHandler>& handlers() {
    static auto& table = *new std::map<HandlerKey, InstalledHandler>;
    return table;
}

} // namespace

OSErr AEInstallEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler,
                            void* refCon) {
    if (!handler)
        return paramErr;
    handlers().insert_or_assign({eventClass, eventID}, InstalledHandler{handler, refCon});
    return noErr;
}

OSErr AERemoveEventHandler(AEEventClass eventClass, AEEventID eventID, AEEventHandler handler) {
    const auto installed = handlers().find({eventClass, eventID});
    if (installed == handlers().end() || installed->second.handler != handler)
        return errAEHandlerNotFound;
    handlers().erase(installed);
    return noErr;
}

OSErr dispatchAppleEvent(const AppleEvent& event, AppleEvent* reply) {
    const HandlerKey keys[] = {{event.eventClass, event.eventID},
                               {event.eventClass, typeWildCard},
                               {typeWildCard, event.eventID},
                               {typeWildCard, typeWildCard}};
    for (const HandlerKey& key : keys) {
        const auto found = handlers().find(key);
        if (found == handlers().end())
            continue;
        const auto [handler, refCon] = found->second; // the handler may remove itself
        return handler(&event, reply, refCon);
    }
    return errAEEventNotHandled;
}
