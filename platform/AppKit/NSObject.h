#pragma once

#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

class NSObject;

/// One field of a class that an interface file can fill, by name.
struct NSOutlet {
    std::string_view name;
    const std::type_info* type; ///< what the field points to
    /// Stores `object` in the owner's field; false when it isn't of the field's type.
    bool (*connect)(NSObject& owner, NSObject& object);
    bool (*isConnected)(const NSObject& owner);
};

/// One method of a class that a control can send, by its selector's name, with the sending control
/// as its argument. A pointer to an entry of a class's action table stands for the selector.
struct NSAction {
    std::string_view name;            ///< with the colon, "changedScanMode:"
    const std::type_info* senderType; ///< what the method takes
    bool (*accepts)(const NSObject& sender);
    void (*send)(NSObject& target, NSObject& sender);
};

using SEL = const NSAction*;

/// The root of the classes that an interface file can make and wire. Such a class lists its outlets
/// and actions in one table each, and its name in the registry below.
class NSObject {
public:
    NSObject() = default;
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;
    virtual ~NSObject() = default;

    virtual std::span<const NSOutlet> outlets() const { return {}; }

    virtual std::span<const NSAction> actions() const { return {}; }

    /// What the interface file lays out otherwise than the code expects, in words; asked when all
    /// outlets are filled.
    virtual std::vector<std::string> layoutFaults() const { return {}; }

    /// Called once, when the whole interface file has been loaded and wired.
    virtual void awakeFromNib() {}

    /// The action of that name, or null.
    SEL selector(std::string_view name) const;
};

namespace nswiring {

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

/// The field that the pointers to members lead to, one after another.
template <auto First, auto... Rest, class Owner>
auto& follow(Owner& owner) {
    if constexpr (sizeof...(Rest) == 0)
        return owner.*First;
    else
        return follow<Rest...>(owner.*First);
}

} // namespace nswiring

/// A row of an outlet table: `nsOutlet<&PreferenceWrangler::volume>("volume")`. The field may lie
/// in a part of the owner: `nsOutlet<&PreferenceWrangler::palette, &PaletteEditor::view>("view")`.
template <auto First, auto... Rest>
constexpr NSOutlet nsOutlet(std::string_view name) {
    using Owner = typename nswiring::MemberTraits<decltype(First)>::Owner;
    using Field = decltype(nswiring::follow<First, Rest...>(std::declval<const Owner&>()));
    using Target = std::remove_pointer_t<std::remove_cvref_t<Field>>;
    return {name, &typeid(Target),
            [](NSObject& owner, NSObject& object) {
                auto* target = dynamic_cast<Target*>(&object);
                if (target)
                    nswiring::follow<First, Rest...>(static_cast<Owner&>(owner)) = target;
                return target != nullptr;
            },
            [](const NSObject& owner) {
                return nswiring::follow<First, Rest...>(static_cast<const Owner&>(owner)) !=
                       nullptr;
            }};
}

/// A row of an action table: `nsAction<&SliderController::incValue>("incValue:")`.
template <auto Method>
constexpr NSAction nsAction(std::string_view name) {
    using Owner = typename nswiring::MemberTraits<decltype(Method)>::Owner;
    using Sender = typename nswiring::MemberTraits<decltype(Method)>::Sender;
    return {name, &typeid(Sender),
            [](const NSObject& sender) { return dynamic_cast<const Sender*>(&sender) != nullptr; },
            [](NSObject& target, NSObject& sender) {
                if (auto* typed = dynamic_cast<Sender*>(&sender))
                    (static_cast<Owner&>(target).*Method)(typed);
            }};
}

/// A class that an interface file or an Info.plist names.
struct NSClassEntry {
    std::string_view name;
    NSObject* (*make)(); ///< the caller owns the result
};

/// Adds a class to the registry that NSClassFromString searches; a static object of this type
/// beside the class's code does it when that code is loaded.
class NSClassRegistration {
public:
    explicit NSClassRegistration(NSClassEntry entry);
};

/// The class of that name, or null.
const NSClassEntry* NSClassFromString(std::string_view name);

#define NS_REGISTER_CLASS(Class)                                                                   \
    static const NSClassRegistration registration##Class {                                         \
        {                                                                                          \
#Class, []() -> NSObject* { return new Class; }                                        \
        }                                                                                          \
    }
