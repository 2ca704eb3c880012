#pragma once

#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Foundation/Random.h"
#include "WumbleCore/Life/WumbleAccessory.h"
#include "WumbleCore/Life/WumbleFace.h"
#include "WumbleCore/Life/WumblePersonality.h"

#include <optional>
#include <span>
#include <string_view>

namespace wumble {

/// A pet's character and looks.
struct WumbleTraits {
    using Eyes = WumbleEyes;
    using Mouth = WumbleMouth;
    using Cheeks = WumbleCheeks;
    using Accessory = WumbleAccessory;
    using Keepsake = WumbleKeepsake;

    WumblePersonality personality{};
    Eyes eyes{};
    Mouth mouth{};
    Cheeks cheeks{};
    Accessory accessory{};
    Keepsake keepsake{};

    bool operator==(const WumbleTraits&) const = default;

    /// The same look for the same text on every machine and at every start.
    static WumbleTraits seeded(std::string_view seed);

    /// A new pet's traits: another personality than `avoiding`, its favourite keepsake half of the time, and
    /// looks that come round before any repeats. `recent` holds the traits of the days before, nearest first.
    static WumbleTraits random(const Random& random, std::optional<WumblePersonality> avoiding,
                               std::span<const WumbleTraits> recent);

    /// Reads stored traits. What is missing, of a wrong type or unknown is taken from the look of `seed`; absent
    /// only when the value is no object.
    static std::optional<WumbleTraits> fromStored(const Json& json, std::string_view seed);

    static void visitJsonFields(auto&& visitor) {
        visitor("personality", &WumbleTraits::personality);
        visitor("eyes", &WumbleTraits::eyes);
        visitor("mouth", &WumbleTraits::mouth);
        visitor("cheeks", &WumbleTraits::cheeks);
        visitor("accessory", &WumbleTraits::accessory);
        visitor("keepsake", &WumbleTraits::keepsake);
    }
};
static_assert(sizeof(WumbleTraits) == 6);

} // namespace wumble
