#include "WumbleCore/Life/WumbleTraits.h"

#include <cstdint>

namespace wumble {

namespace {

/// The vocabularies as they were when the first pets were stored. They don't grow with the enumerations, or old
/// pets would change their look.
constexpr std::uint64_t earlyPersonalities = 6;
constexpr std::uint64_t earlyKeepsakes = 7;
constexpr std::uint64_t earlyEyes = 6;
constexpr std::uint64_t earlyMouths = 3;
constexpr std::uint64_t earlyCheeks = 2;
constexpr std::uint64_t earlyAccessories = 10;

std::uint64_t fnv1a(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : text) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return hash;
}

class Xorshift {
public:
    explicit Xorshift(std::uint64_t state) : state_(state) {}

    std::uint64_t below(std::uint64_t bound) {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return state_ % bound;
    }

    template <class Case> Case pick(std::uint64_t firstCases) { return static_cast<Case>(below(firstCases)); }

private:
    std::uint64_t state_;
};

WumbleKeepsake earlyFavorite(WumblePersonality personality) {
    return personality == WumblePersonality::caring ? WumbleKeepsake::tea
                                                    : about(personality).favoriteKeepsake;
}

WumbleKeepsake earlyKeepsake(WumblePersonality personality, Xorshift& draws) {
    constexpr std::uint64_t favoritePercent = 65;
    const bool isFavorite = draws.below(100) < favoritePercent;
    return isFavorite ? earlyFavorite(personality) : draws.pick<WumbleKeepsake>(earlyKeepsakes);
}

std::string_view spelledAsNow(std::string_view raw) { return raw == "tinyO" ? "tiny-o" : raw; }

} // namespace

WumbleTraits WumbleTraits::seeded(std::string_view seed) {
    Xorshift draws(fnv1a(seed));
    WumbleTraits traits;
    traits.personality = draws.pick<WumblePersonality>(earlyPersonalities);
    traits.keepsake = earlyKeepsake(traits.personality, draws);
    traits.eyes = draws.pick<Eyes>(earlyEyes);
    traits.mouth = draws.pick<Mouth>(earlyMouths);
    traits.cheeks = draws.pick<Cheeks>(earlyCheeks);
    traits.accessory = draws.pick<Accessory>(earlyAccessories);
    return traits;
}

std::optional<WumbleTraits> WumbleTraits::fromStored(const Json& json, std::string_view seed) {
    const auto* stored = json.object();
    if (stored == nullptr) {
        return std::nullopt;
    }
    auto traits = seeded(seed);
    visitJsonFields([&](std::string_view key, auto member) {
        const auto found = stored->find(key);
        const auto* raw = found != stored->end() ? found->second.string() : nullptr;
        if (raw != nullptr) {
            using Case = std::remove_reference_t<decltype(traits.*member)>;
            const auto text = std::is_same_v<Case, Mouth> ? spelledAsNow(*raw) : std::string_view(*raw);
            traits.*member = enumFromText<Case>(text).value_or(traits.*member);
        }
    });
    return traits;
}

} // namespace wumble
