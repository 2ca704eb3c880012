#pragma once

#include "Quietlark/Pet/Art/Art.h"
#include "WumbleCore/Life/WumbleBase.h"

#include <optional>

/// The lumps of dough: wide, low, heavy at the floor, sagging a little over their own edge, with a top that
/// is never an arc.
namespace quietlark::SoftWumble {

inline constexpr Art vanillaShape{"M51 158C59 111 90 87 132 87C175 83 207 112 218 155C223 173 234 190 232 203"
                                  "C228 221 196 228 136 228C77 228 44 221 40 204C37 190 47 177 51 158Z"};

inline constexpr Art taroShape{"M47 166C49 122 78 85 118 83C164 80 201 106 214 148C220 170 237 190 235 203"
                               "C231 221 199 228 136 228C76 228 43 221 39 204C36 190 46 184 47 166Z"};

inline constexpr Art matchaShape{"M46 152C52 112 82 92 124 90C172 86 214 108 222 154C226 176 235 190 233 203"
                                 "C229 221 197 228 136 228C76 228 43 221 39 204C36 190 43 172 46 152Z"};

inline constexpr Art strawberryShape{
    "M54 162C58 120 92 84 132 81C172 80 203 113 213 156C219 178 233 190 231 203"
    "C227 221 195 228 136 228C78 228 45 221 41 204C38 190 51 182 54 162Z"};

inline constexpr Art hojichaShape{
    "M48 160C55 124 80 102 108 94C120 91 127 80 142 82C154 84 158 93 172 98C201 108 213 132 219 160"
    "C224 180 235 190 233 203C229 221 197 228 136 228C76 228 43 221 39 204C36 190 45 180 48 160Z"};

inline constexpr Art kinakoShape{"M42 168C47 128 80 98 126 95C172 91 211 118 223 160C229 180 238 190 236 203"
                                 "C232 221 200 228 136 228C72 228 39 221 35 204C32 190 41 186 42 168Z"};

inline constexpr Art azukiShape{
    "M46 160C51 118 76 88 108 88C122 88 129 93 140 91C152 87 166 85 180 94C208 110 217 134 222 160"
    "C226 180 235 190 233 203C229 221 197 228 136 228C75 228 42 221 38 204C35 190 44 180 46 160Z"};

inline constexpr Art peachShape{
    "M45 164C47 124 72 88 109 87C123 87 131 92 138 99C144 90 153 85 166 88C202 97 220 128 223 164"
    "C225 182 234 190 232 203C228 221 196 228 136 228C76 228 43 221 39 204C36 190 44 182 45 164Z"};

/// A chestnut's point, blunt and a little to one side.
inline constexpr Art kuriShape{
    "M43 168C46 126 86 105 114 94C125 89 131 82 139 82C147 83 152 90 163 95C194 107 222 130 225 168"
    "C226 184 235 190 233 203C229 221 197 228 136 228C75 228 42 221 38 204C35 190 42 184 43 168Z"};

/// Pressed in at the waist like a rice ball.
inline constexpr Art isobeShape{
    "M47 162C53 126 80 89 116 84C132 81 150 82 163 88C194 101 214 130 221 160C225 178 233 190 231 203"
    "C227 221 195 228 136 228C76 228 43 221 39 204C36 190 44 178 47 162Z"};

/// A sweet potato leans where it was dug from.
inline constexpr Art imoShape{"M44 170C44 132 62 102 98 90C136 78 182 88 208 122C224 144 222 166 228 186"
                              "C236 206 230 228 136 228C78 228 43 221 39 204C36 192 44 184 44 170Z"};

/// Almost round, as fruit is.
inline constexpr Art yuzuShape{
    "M46 162C46 116 84 86 130 87C136 87 138 82 144 83C150 84 150 89 156 90C196 96 222 124 223 162"
    "C225 182 234 190 232 203C228 221 196 228 136 228C76 228 43 221 39 204C36 190 45 182 46 162Z"};

/// Full at the shoulders.
inline constexpr Art mangoShape{"M49 156C50 112 92 80 140 83C186 84 218 112 221 150C223 174 234 190 232 203"
                                "C228 221 196 228 136 228C77 228 44 221 40 204C37 190 49 178 49 156Z"};

const QPainterPath& shape(wumble::WumbleBase base);

/// Where the outline of the straight body is highest at that x, in the box.
double crest(wumble::WumbleBase base, double x);

struct Extent {
    double from;
    double to;
};

/// From where to where an outline reaches at that height; absent where it doesn't.
std::optional<Extent> extentAt(const QPainterPath& outline, double y);

} // namespace quietlark::SoftWumble
