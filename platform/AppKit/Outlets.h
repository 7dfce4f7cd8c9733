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

/// A method of a class that a control can call by its selector's name. It takes the sender, as a
/// pointer or a reference, or nothing. A selector is a pointer to an entry of the class's action
/// table.
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

template <class OwnerType, class SenderType>
struct MemberTraits<void (OwnerType::*)(SenderType&)> {
    using Owner = OwnerType;
    using Sender = std::remove_const_t<SenderType>;
};

template <class OwnerType>
struct MemberTraits<void (OwnerType::*)()> {
    using Owner = OwnerType;
    using Sender = NSObject; // any
};

/// Null if it is no such object.
template <class Type, class Object>
Type* as(Object* object) {
    return dynamic_cast<Type*>(object);
}

/// The type of the method at the end of a chain.
template <auto First, auto... Rest>
struct Last : Last<Rest...> {};

template <auto Method>
struct Last<Method> {
    using Type = decltype(Method);
};

/// The field at the end of a chain of pointers to members.
template <auto First, auto... Rest, class Owner>
auto& follow(Owner& owner) {
    if constexpr (sizeof...(Rest) == 0)
        return owner.*First;
    else
        return follow<Rest...>(owner.*First);
}

/// Calls the method at the end of a chain.
template <auto First, auto... Rest, class Owner, class Sender>
void call(Owner& owner, Sender& sender) {
    if constexpr (sizeof...(Rest) > 0)
        call<Rest...>(owner.*First, sender);
    else if constexpr (std::is_invocable_v<decltype(First), Owner&>)
        (owner.*First)();
    else if constexpr (std::is_invocable_v<decltype(First), Owner&, Sender&>)
        (owner.*First)(sender);
    else
        (owner.*First)(&sender);
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

/// A row of an action table: `actionRow<&SliderController::incValue>("incValue:")`. The method may
/// be that of a part of the owner, as in outletRow.
template <auto First, auto... Rest>
constexpr Action actionRow(std::string_view name) {
    using Owner = typename wiring::MemberTraits<decltype(First)>::Owner;
    using Method = typename wiring::Last<First, Rest...>::Type;
    using Sender = typename wiring::MemberTraits<Method>::Sender;
    return {name, &typeid(Sender),
            [](const NSObject& sender) { return wiring::as<const Sender>(&sender) != nullptr; },
            [](NSObject& target, NSObject& sender) {
                if (auto* typed = wiring::as<Sender>(&sender))
                    wiring::call<First, Rest...>(static_cast<Owner&>(target), *typed);
            }};
}
