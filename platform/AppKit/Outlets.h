// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

class NSObject;

/// A field of a class that an interface file can fill by name.
struct Outlet {
    std::string_view name;
    const std::type_info* type; ///< what the field points to
    /// Stores `object` in the owner's field. False when its type doesn't fit.
    bool (*connect)(NSObject& owner, NSObject& object);
    bool (*isConnected)(const NSObject& owner);
};

/// A method of a class that a control can call by its selector's name. Its argument is the sender.
/// A selector is a pointer to an entry of the class's action table.
struct Action {
    std::string_view name;            ///< with the colon, "changedScanMode:"
    const std::type_info* senderType; ///< what the method takes
    bool (*accepts)(const NSObject& sender);
    void (*send)(NSObject& target, NSObject& sender);
};

using SEL = const Action*;

namespace wiring {

template <class>
struct MemberTraits;

template <class OwnerType, class FieldType>
struct MemberTraits<FieldType OwnerType::*> {
    using Owner = OwnerType;
};

template <class OwnerType, class SenderType>
struct MemberTraits<void (OwnerType::*)(SenderType*)> {
    using Owner = OwnerType;
    using Sender = SenderType;
};

/// The field at the end of a chain of pointers to members.
template <auto First, auto... Rest, class Owner>
auto& follow(Owner& owner) {
    if constexpr (sizeof...(Rest) == 0)
        return owner.*First;
    else
        return follow<Rest...>(owner.*First);
}

} // namespace wiring

/// A row of an outlet table: `outletRow<&PreferenceWrangler::volume>("volume")`. The field may be
/// in a part of the owner: `outletRow<&PreferenceWrangler::palette, &PaletteEditor::view>("view")`.
template <auto First, auto... Rest>
constexpr Outlet outletRow(std::string_view name) {
    using Owner = typename wiring::MemberTraits<decltype(First)>::Owner;
    using Field = decltype(wiring::follow<First, Rest...>(std::declval<const Owner&>()));
    using Target = std::remove_pointer_t<std::remove_cvref_t<Field>>;
    return {name, &typeid(Target),
            [](NSObject& owner, NSObject& object) {
                auto* target = dynamic_cast<Target*>(&object);
                if (target)
                    wiring::follow<First, Rest...>(static_cast<Owner&>(owner)) = target;
                return target != nullptr;
            },
            [](const NSObject& owner) {
                return wiring::follow<First, Rest...>(static_cast<const Owner&>(owner)) != nullptr;
            }};
}

/// A row of an action table: `actionRow<&SliderController::incValue>("incValue:")`.
template <auto Method>
constexpr Action actionRow(std::string_view name) {
    using Owner = typename wiring::MemberTraits<decltype(Method)>::Owner;
    using Sender = typename wiring::MemberTraits<decltype(Method)>::Sender;
    return {name, &typeid(Sender),
            [](const NSObject& sender) { return dynamic_cast<const Sender*>(&sender) != nullptr; },
            [](NSObject& target, NSObject& sender) {
                if (auto* typed = dynamic_cast<Sender*>(&sender))
                    (static_cast<Owner&>(target).*Method)(typed);
            }};
}
