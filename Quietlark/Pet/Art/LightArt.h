#pragma once

#include "Quietlark/Pet/Art/Art.h"

/// Where the light falls on every body, at its place in the box.
namespace quietlark::SoftWumble {

inline constexpr Art broadLight{
    "M64 150C66 122 86 102 114 97C124 95 128 101 118 105C98 112 86 126 82 148C79 162 63 164 64 150Z"};
inline constexpr Art smallLight{
    "M76 134C79 124 86 115 95 109C99 107 102 110 99 113C92 119 87 127 84 136C82 141 74 140 76 134Z"};
inline constexpr Art speckOfLight{
    "M71 147C74 145 78 147 77.5 151C77 155 71.5 156 69.5 152.5C68.5 150.5 69.2 148.2 71 147Z"};

} // namespace quietlark::SoftWumble
