#pragma once

#include "Quietlark/Pet/Art/Art.h"

/// Props at their place in the box, and what floats about the pet, each around its own origin.
namespace quietlark::SoftWumble {

inline constexpr Art keyboard{"M60 206L208 206C212 206 214 208 215 211L222 232C223 236 221 239 217 239L51 239"
                              "C47 239 45 236 46 232L53 211C54 208 56 206 60 206Z"};

inline constexpr Art keyboardFront{"M46 231L222 231C223 236 221 240 217 240L51 240C47 240 45 236 46 231Z"};

inline constexpr Art keyboardKeys{
    "M66 213h10M84 213h10M102 213h10M120 213h10M138 213h10M156 213h10M174 213h10M192 213h8M62 221h10"
    "M81 221h10M100 221h10M119 221h10M138 221h10M157 221h10M176 221h10M195 221h9"};

inline constexpr Art headsetBand{
    "M-95 72C-97 20-64-13 0-13C64-13 97 20 95 72L86 72C87 24 58-5 0-5C-58-5-87 24-86 72Z"};

/// All that is under the band.
inline constexpr Art headsetBacking{"M-90 72C-92 23-61-9 0-9C61-9 92 23 90 72Z"};

inline constexpr Art headsetCup{
    "M99 58C91 53 82 55 80 62C77 72 77 84 80 93C82 100 91 102 99 97C106 90 107 66 99 58Z"
    "M-98 64C-95 59-86 59-83 64C-81 71-81 79-83 85C-86 90-95 90-98 85C-100 79-100 71-98 64Z"};

inline constexpr Art headsetArm{"M94 94C92 108 70 114 46 106"};

inline constexpr Art headsetMic{"M48 106L38 103"};

inline constexpr Art arrow{"M0-1L-20-12C-23-14-26-11-25-8L-17 14C-16 17-12 17-11 14L-8 6L1 4C4 3 4 1 0-1Z"};

inline constexpr Art swoosh{"M-4-26C8-22 14-12 14 0M-14-18C-4-16 0-9 1-1"};

inline constexpr Art glint{"M0-13C1.5-4 4-1.5 13 0C4 1.5 1.5 4 0 13C-1.5 4-4 1.5-13 0C-4-1.5-1.5-4 0-13Z"};

inline constexpr Art noteHead{"M-1.8-4.9C1.6-6.1 5.2-5 6.2-2.3C7.2 .4 5.2 3.6 1.8 4.9C-1.6 6.1-5.2 5-6.2 2.3"
                              "C-7.2-.4-5.2-3.6-1.8-4.9Z"};

inline constexpr Art noteFlag{"M5.6-2L5.6-24C8-17 15-17 14-9"};

inline constexpr Art notePair{
    "M-11.6-2.5C-8.5-3.6-5.3-2.5-4.4-.1C-3.5 2.4-5.2 5.4-8.4 6.5C-11.5 7.6-14.7 6.5-15.6 4.1"
    "C-16.5 1.6-14.8-1.4-11.6-2.5ZM10.4-6.5C13.5-7.6 16.7-6.5 17.6-4.1C18.5-1.6 16.8 1.4 13.6 2.5"
    "C10.5 3.6 7.3 2.5 6.4 .1C5.5-2.4 7.2-5.4 10.4-6.5Z"};

inline constexpr Art noteStems{"M-5 0L-5-21M17-4L17-25"};

inline constexpr Art noteBeam{"M-7-23L19-28L19-21L-7-16Z"};

inline constexpr Art sleepZ{"M-7-8L7-8L-7 8L7 8"};

} // namespace quietlark::SoftWumble
