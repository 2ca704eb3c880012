#pragma once

#include "Quietlark/Pet/Art/Art.h"

/// What pets bring home, each around the point where it is held.
namespace quietlark::SoftWumble {

inline constexpr Art bookCover{
    "M-28-15C-28-19-26-21-22-21L-2-19L22-21C26-21 28-19 28-15L28 16C28 20 26 21 22 21L0 23L-22 21"
    "C-26 21-28 20-28 16Z"};

inline constexpr Art bookPages{
    "M-24-17C-16-19-6-18 0-14C6-18 16-19 24-17L24 15C16 13 6 14 0 18C-6 14-16 13-24 15Z"};

inline constexpr Art bookLines{
    "M-19-9C-14-10-9-9-5-7M-19-2C-14-3-9-2-5 0M-19 5C-14 4-9 5-5 7M5-7C9-9 14-10 19-9M5 0"
    "C9-2 14-3 19-2M0-13L0 17"};

inline constexpr Art teaCup{"M-23-12C-22-14 22-14 23-12C24 8 15 21 0 21C-15 21-24 8-23-12Z"};

inline constexpr Art teaHandle{"M20-7C34-10 36 9 17 11"};

inline constexpr Art teaDrink{
    "M0-16.6C11.3-16.6 20.5-14.5 20.5-12C20.5-9.5 11.3-7.4 0-7.4C-11.3-7.4-20.5-9.5-20.5-12"
    "C-20.5-14.5-11.3-16.6 0-16.6Z"};

inline constexpr Art teaBand{"M-21 1C-8 5 8 5 21 1L19 8C8 11-8 11-19 8Z"};

inline constexpr Art teaSteam{"M17-19C14.5-22 19.5-24 17-27.5M25-17C22.5-20 27.5-22 25-25.5"};

inline constexpr Art heart{"M0 19C-39-1-20-30 0-12C20-31 39-1 0 19Z"};

inline constexpr Art heartShine{"M-14-10C-18-7-19-3-17 1"};

inline constexpr Art heartStitch{"M-2 12C-12 6-18 0-18-6M8 8C13 4 17 0 18-5"};

inline constexpr Art plantPot{
    "M-17 0L17 0C18 0 19 2 18.5 3L14 20C13 22 11 23 9 23L-9 23C-11 23-13 22-14 20L-18.5 3"
    "C-19 2-18 0-17 0Z"};

inline constexpr Art plantPotRim{
    "M-20-4C-20-6-19-7-17-7L17-7C19-7 20-6 20-4L20 2C20 4 19 5 17 5L-17 5C-19 5-20 4-20 2Z"};

inline constexpr Art plantStem{"M0-6C0-16 1-22 0-30"};

inline constexpr Art plantLeafA{"M0-18C-6-34-22-38-30-32C-28-18-14-12 0-18Z"};

inline constexpr Art plantLeafB{"M0-18C4-36 18-44 30-38C30-24 16-14 0-18Z"};

inline constexpr Art plantLeafC{"M0-22C-9-32-7-46 1-52C9-46 9-32 0-22Z"};

/// Around all of its folds, so that its rim is one line.
inline constexpr Art craneOutline{
    "M-42-17L-14.8 2.3L-11-24L6.8-4.4L20-23L18.1-5.3L37-26L48-15L34.2-18.3L23.2 11.3"
    "L25 12L22.3 13.6L21 17L18.9 15.7L2 26L-17.4 15.5L-21 17Z"};

inline constexpr Art craneTail{"M-4 10L-42-17L-21 17Z"};

inline constexpr Art craneNeck{"M6 8L37-26L21 17Z"};

inline constexpr Art craneBody{"M-24 12L0 2L25 12L2 26Z"};

inline constexpr Art craneLight{"M-16 11L-11-24L20 10L4 17Z"};

inline constexpr Art craneBackWing{"M-2 8L20-23L16 12Z"};

inline constexpr Art craneHead{"M37-26L48-15L31-19Z"};

inline constexpr Art pencilWood{"M-11-34L11-34L11 16L-11 16Z"};

inline constexpr Art pencilStripes{"M-4-33L-4 15M4-33L4 15"};

inline constexpr Art pencilTip{
    "M-11 15C-8 12-6 12-3.7 15C-1 12 1 12 3.7 15C6 12 8 12 11 15L2 35C1 37-1 37-2 35Z"};

inline constexpr Art pencilLead{"M-4.5 29C-2 27.5 2 27.5 4.5 29L2 35C1 37-1 37-2 35Z"};

inline constexpr Art pencilFerrule{"M-11.5-41L11.5-41L11.5-33L-11.5-33Z"};

inline constexpr Art pencilRubber{"M-11-41C-11-52 11-52 11-41Z"};

inline constexpr Art lanternHandle{"M-13-26C-13-44 13-44 13-26"};

inline constexpr Art lanternPaper{"M-15-24L15-24C30-18 30 14 15 20L-15 20C-30 14-30-18-15-24Z"};

inline constexpr Art lanternGlow{"M-8-16C-16-8-16 6-8 13C0 16 8 13 10 8C13-4 8-14 2-18Z"};

inline constexpr Art lanternBands{"M-23-14C-8-10 8-10 23-14M-26-2C-10 2 10 2 26-2M-23 10C-8 14 8 14 23 10"};

inline constexpr Art lanternCaps{
    "M-15-29L15-29C17-29 17-23 15-23L-15-23C-17-23-17-29-15-29ZM-14 18L14 18C16 18 16 25 14 25L-14 25"
    "C-16 25-16 18-14 18Z"};

inline constexpr Art dangoStick{"M-6-50L6-50L6 36L-6 36Z"};

inline constexpr double dangoTilt = 24; ///< degrees that the stick leans outwards

inline constexpr Art dangoTop{
    "M0-46.5C8.6-46.5 15.5-40 15.5-32C15.5-24 8.6-17.5 0-17.5C-8.6-17.5-15.5-24-15.5-32"
    "C-15.5-40-8.6-46.5 0-46.5Z"};

inline constexpr Art dangoMiddle{"M0-22.5C8.7-22.5 15.8-16 15.8-8C15.8 0 8.7 6.5 0 6.5C-8.7 6.5-15.8 0-15.8-8"
                                 "C-15.8-16-8.7-22.5 0-22.5Z"};

inline constexpr Art dangoBottom{
    "M0 1.5C8.6 1.5 15.5 8 15.5 16C15.5 24 8.6 30.5 0 30.5C-8.6 30.5-15.5 24-15.5 16"
    "C-15.5 8-8.6 1.5 0 1.5Z"};

inline constexpr Art dangoBalls{"M-6-38h.1M-6-14h.1M-6 10h.1"};

inline constexpr Art onigiri{"M-5-24C-2-29 4-29 7-24L28 10C32 17 28 23 21 23L-20 23C-27 23-31 17-27 10Z"};

inline constexpr Art onigiriNori{"M-11 5C-11 3-10 2-8 2L9 2C11 2 12 3 12 5L12 24L-11 24Z"};

inline constexpr Art onigiriGrains{"M-4-13l4 2M7-8l-3 3M-15 7l3-2M19 8l3 3M-19 15l3 2M0-4l3-1"};

inline constexpr Art daruma{"M0-28C18-28 27-14 27 0C27 16 18 24 0 24C-18 24-27 16-27 0C-27-14-18-28 0-28Z"};

inline constexpr Art darumaSpot{"M-15-8C-15-17-7-18 0-14C7-18 15-17 15-8C15 1 8 5 0 5C-8 5-15 1-15-8Z"};

inline constexpr Art darumaEyes{
    "M-6.5-11.8C-4-11.8-1.9-9.7-1.9-7C-1.9-4.3-4-2.2-6.5-2.2C-9-2.2-11.1-4.3-11.1-7"
    "C-11.1-9.7-9-11.8-6.5-11.8ZM6.5-11.8C9-11.8 11.1-9.7 11.1-7C11.1-4.3 9-2.2 6.5-2.2"
    "C4-2.2 1.9-4.3 1.9-7C1.9-9.7 4-11.8 6.5-11.8Z"};

inline constexpr Art darumaPupil{"M-6.5-7h.1"};

inline constexpr Art darumaBrows{"M-12-16C-9-18-5-17-3-15M12-16C9-18 5-17 3-15M-3 1.5C-1 2.5 1 2.5 3 1.5"};

inline constexpr Art darumaBelly{"M-10 11C-8 16 8 16 10 11M-16 8C-15 15-11 19-6 21M16 8C15 15 11 19 6 21"};

inline constexpr Art darumaShine{"M-21-5C-21-12-17-18-12-21"};

inline constexpr Art balloon{
    "M96-154C115-154 127-140 127-122C127-104 111-91 97-86C82-91 66-104 66-122C66-140 78-154 96-154Z"};

inline constexpr Art balloonKnot{"M97-88L103-79C99-77 94-77 90-79Z"};

inline constexpr Art balloonString{"M97-79C103-58 78-48 70-30C64-16 62-6 60 6"};

inline constexpr Art balloonShine{"M77-122C77-132 82-140 90-144"};

} // namespace quietlark::SoftWumble
