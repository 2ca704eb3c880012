#pragma once

#include "Quietlark/Pet/Art/Art.h"

/// What pets wear, each around the point where it sits; glasses and scarf at their place in the box.
namespace quietlark::SoftWumble {

inline constexpr Art bow{"M0 0C-23-22-30-10-20 7C-13 16-5 6 0 0C19-20 30-8 21 9C13 16 5 6 0 0Z"};

inline constexpr Art bowTails{
    "M-3 2C-8 9-12 14-17 20C-13 21-10 20-7 19L-5 23C-1 16 1 9 2 3ZM3 2C7 9 12 14 17 21"
    "C13 21 10 20 7 18L4 22C1 16-1 9-2 3Z"};

inline constexpr Art bowFolds{"M-6-3C-11-6-15-6-18-3M7-3C11-6 15-5 18-2"};

inline constexpr Art bowKnot{"M-5-4C-3-6 3-6 5-4C7-2 7 3 5 5C3 7-3 7-5 5C-7 3-7-2-5-4Z"};

inline constexpr Art sproutStem{"M-2.5 6C-2-6-4-14-5-22L1-23C2-13 3-5 3.5 6Z"};

inline constexpr Art sproutLeafA{"M-2-20C-8-38-28-44-40-35C-36-18-18-11-2-20Z"};

inline constexpr Art sproutLeafB{"M-2-20C3-42 22-52 37-45C37-27 17-15-2-20Z"};

inline constexpr Art sproutVeins{"M-8-22C-17-26-25-30-32-32M4-24C13-31 21-37 29-40"};

inline constexpr Art flowerPetals{
    "M-9.5-19.5C-9.5-25.6-5.2-30.5 0-30.5C5.2-30.5 9.5-25.6 9.5-19.5C9.5-13.4 5.2-8.5 0-8.5"
    "C-5.2-8.5-9.5-13.4-9.5-19.5ZM9.9-19.2C15.7-21.1 21.7-18.6 23.3-13.6C24.9-8.6 21.6-3 15.8-1.1"
    "C10 .7 4-1.8 2.4-6.8C.8-11.8 4.1-17.3 9.9-19.2ZM15.6-.7C19.2 4.3 18.6 10.7 14.4 13.8"
    "C10.2 16.9 3.8 15.4 .2 10.5C-3.3 5.6-2.8-.9 1.5-4C5.7-7.1 12-5.6 15.6-.7ZM-.2 10.5"
    "C-3.8 15.4-10.2 16.9-14.4 13.8C-18.6 10.7-19.2 4.3-15.6-.7C-12-5.6-5.7-7.1-1.5-4"
    "C2.8-.9 3.3 5.6-.2 10.5ZM-15.8-1.1C-21.6-3-24.9-8.6-23.3-13.6C-21.7-18.6-15.7-21.1-9.9-19.2"
    "C-4.1-17.3-.8-11.8-2.4-6.8C-4-1.8-10 .7-15.8-1.1Z"};

inline constexpr Art flowerFolds{
    "M0-15L0-21M8.6-8.8L14.3-10.6M5.3 1.3L8.8 6.1M-5.3 1.3L-8.8 6.1M-8.6-8.8L-14.3-10.6"};

inline constexpr Art flowerHeart{
    "M0-13.2C4.1-13.2 7.5-10 7.5-6C7.5-2 4.1 1.2 0 1.2C-4.1 1.2-7.5-2-7.5-6C-7.5-10-4.1-13.2 0-13.2Z"};

inline constexpr Art flowerLeaf{"M8 8C16 2 28 4 34 13C25 19 13 18 8 8Z"};

inline constexpr Art beretTop{"M-48 0C-54-20-24-38 6-37C36-36 58-20 52-4C46 8-40 12-48 0Z"};

inline constexpr Art beretBand{"M-34 2C-16 8 20 7 36 0C38 4 38 7 35 9C14 16-16 16-33 11C-36 9-36 5-34 2Z"};

inline constexpr Art beretStem{"M3-35C2-40 4-45 8-47C11-48 13-44 11-42C9-40 9-38 9-35Z"};

inline constexpr Art beretSheen{"M-36-12C-28-22-14-29 0-30"};

inline constexpr Art beanieTop{"M-47 8C-50-28-26-48 0-48C28-48 50-28 47 8Z"};

inline constexpr Art beanieRibs{"M-27-2C-26-20-20-34-13-41M0-2L0-44M27-2C26-20 20-34 13-41"};

inline constexpr Art beanieBrim{
    "M-50-4C-53-2-54 12-49 15C-20 6 20 6 49 15C54 12 53-2 50-4C20-12-20-12-50-4Z"};

inline constexpr Art beanieBrimRibs{"M-36-4L-37 8M-18-7L-18 5M0-8L0 4M18-7L18 5M36-4L37 8"};

inline constexpr Art beaniePom{
    "M-1.4-66.6Q0-68 1.4-66.6L3-65.1Q3.8-64.3 4.8-64.4L7-64.6Q9-64.7 9.2-62.7L9.4-60.5"
    "Q9.5-59.5 10.4-58.9L12.2-57.6Q13.8-56.4 12.7-54.8L11.4-53Q10.8-52.1 11.1-51.1L11.6-48.9"
    "Q12.1-47 10.2-46.5L8.1-45.9Q7.1-45.6 6.6-44.6L5.7-42.6Q4.8-40.8 3-41.7L1-42.6Q0-43-1-42.6"
    "L-3-41.7Q-4.8-40.8-5.7-42.6L-6.6-44.6Q-7.1-45.6-8.1-45.9L-10.2-46.5Q-12.1-47-11.6-48.9"
    "L-11.1-51.1Q-10.8-52.1-11.4-53L-12.7-54.8Q-13.8-56.4-12.2-57.6L-10.4-58.9Q-9.5-59.5-9.4-60.5"
    "L-9.2-62.7Q-9-64.7-7-64.6L-4.8-64.4Q-3.8-64.3-3-65.1Z"};

inline constexpr Art glassesFrames{
    "M97 147C107.5 147 116 155.1 116 165C116 174.9 107.5 183 97 183C86.5 183 78 174.9 78 165"
    "C78 155.1 86.5 147 97 147ZM171 147C181.5 147 190 155.1 190 165C190 174.9 181.5 183 171 183"
    "C160.5 183 152 174.9 152 165C152 155.1 160.5 147 171 147Z"};

inline constexpr Art glassesLens{
    "M97 149C106.4 149 114 156.2 114 165C114 173.8 106.4 181 97 181C87.6 181 80 173.8 80 165"
    "C80 156.2 87.6 149 97 149ZM171 149C180.4 149 188 156.2 188 165C188 173.8 180.4 181 171 181"
    "C161.6 181 154 173.8 154 165C154 156.2 161.6 149 171 149Z"};

inline constexpr Art glassesBridge{"M116 163C122 157.5 146 157.5 152 163M78.5 162L67 160M189.5 162L201 160"};

inline constexpr Art glassesShine{"M87 161C88 157 91 154.5 95 153.5M161 161C162 157 165 154.5 169 153.5"};

inline constexpr Art scarfBand{
    "M38 182C66 196 100 201 134 201C170 201 204 196 231 182C237 190 238 200 233 207"
    "C206 221 170 225 134 225C98 225 62 221 36 208C31 200 32 190 38 182Z"};

inline constexpr Art scarfFolds{"M52 196C80 206 108 210 134 210C164 210 196 206 220 195"};

inline constexpr Art scarfTail{"M92 208C72 217 48 221 23 220C20 227 20 234 22 241C50 243 78 236 98 222Z"};

inline constexpr Art scarfFringe{"M21 223L14 222.5M20.5 229L13 229.5M20.8 235L13.5 236.5M22 240L15.5 242.5"};

inline constexpr Art scarfStripe{"M35 221.5C32.5 228 32.5 234 34.5 240.5"};

/// What a hat lies on the dough with.
inline constexpr Art itemRim{"M-66 6C-66-6-32-13 0-13C32-13 66-6 66 6C66 17 32 20 0 20C-32 20-66 17-66 6Z"};

inline constexpr Art strawCrown{"M-36 4C-42-28-24-44 0-44C24-44 42-28 36 4C20 11-20 11-36 4Z"};

inline constexpr Art strawBand{"M-37.5-8C-20-1 20-1 37.5-8L36 5C20 12-20 12-36 5Z"};

inline constexpr Art strawWeave{
    "M-24-32C-10-26 10-26 24-32M-31-20C-12-13 12-13 31-20M-54 8C-46 12-36 14-28 15M28 15"
    "C38 14 46 12 54 8"};

inline constexpr Art starClip{
    "M-.7-18Q2.4-22.9 4.4-17.4L6.6-11.4Q7.7-8.5 10.7-7.8L16.9-6.2Q22.5-4.8 17.9-1.2L12.9 2.8"
    "Q10.5 4.7 10.7 7.7L11.1 14.1Q11.5 19.9 6.7 16.7L1.3 13.1Q-1.2 11.4-4 12.6L-10 14.9"
    "Q-15.4 17.1-13.8 11.5L-12.1 5.3Q-11.2 2.4-13.2 0L-17.3-4.9Q-21-9.4-15.2-9.6L-8.8-9.8"
    "Q-5.8-10-4.1-12.5Z"};

inline constexpr Art starShine{"M-8-4C-6-8-4-10-1-12"};

inline constexpr Art starPin{
    "M-30 13C-31 10-29 8-26 8L25 12C28 12 29 15 28 17C27 19 26 19 24 19L-26 16C-28 16-29.5 15-30 13Z"};

inline constexpr Art crown{
    "M-33 8L-38-26C-38-30-34-31-32-28L-19-13L-4-37C-2-40 2-40 4-37L19-13L32-28C34-31 38-30 38-26L33 8"
    "C14 15-14 15-33 8Z"};

inline constexpr Art crownBase{"M-34-3C-14 4 14 4 34-3L33 8C14 15-14 15-33 8Z"};

inline constexpr Art crownGems{"M0-16h.1M-20 2.5h.1M20 2.5h.1"};

inline constexpr Art crownTips{"M-36-28h.1M0-39h.1M36-28h.1"};

inline constexpr Art partyHat{"M-3-62C-1-66 5-66 7-62L33 3C16 13-15 14-31 6Z"};

inline constexpr Art partyHatStripes{"M-8-46L13-46L18-34L-13-33ZM-19-19L24-21L29-8C12 0-12 1-25-4Z"};

inline constexpr Art partyHatPom{
    "M.8-76.2Q2-78 3.2-76.2L4.4-74.3Q5.1-73.4 6.1-73.6L8.4-74.1Q10.5-74.5 10.1-72.4L9.6-70.1"
    "Q9.4-69.1 10.3-68.4L12.2-67.2Q14-66 12.2-64.8L10.3-63.6Q9.4-62.9 9.6-61.9L10.1-59.6"
    "Q10.5-57.5 8.4-57.9L6.1-58.4Q5.1-58.6 4.4-57.7L3.2-55.8Q2-54 .8-55.8L-.4-57.7Q-1.1-58.6-2.1-58.4"
    "L-4.4-57.9Q-6.5-57.5-6.1-59.6L-5.6-61.9Q-5.4-62.9-6.3-63.6L-8.2-64.8Q-10-66-8.2-67.2L-6.3-68.4"
    "Q-5.4-69.1-5.6-70.1L-6.1-72.4Q-6.5-74.5-4.4-74.1L-2.1-73.6Q-1.1-73.4-.4-74.3Z"};

inline constexpr Art partyHatDots{"M-2-26h.1M12-27h.1"};

inline constexpr Art halo{
    "M0-44C24-44 44-38 44-29C44-20 24-14 0-14C-24-14-44-20-44-29C-44-38-24-44 0-44ZM0-34.5"
    "C-18-34.5-33-32-33-29C-33-26-18-23.5 0-23.5C18-23.5 33-26 33-29C33-32 18-34.5 0-34.5Z"};

/// All of it, its hole too: a sticker isn't cut out there.
inline constexpr Art haloBacking{
    "M0-39C21-39 38.5-35 38.5-29C38.5-23 21-19 0-19C-21-19-38.5-23-38.5-29C-38.5-35-21-39 0-39Z"};

inline constexpr Art haloShine{"M-36-34C-28-38-16-40-6-40.5"};

inline constexpr Art headphoneBand{
    "M-95 70C-97 20-64-14 0-14C64-14 97 20 95 70L83 70C84 26 56-3 0-3C-56-3-84 26-83 70Z"};

/// All that is under the band.
inline constexpr Art headphoneBacking{"M-89 70C-91 24-61-8.5 0-8.5C61-8.5 91 24 89 70Z"};

inline constexpr Art headphoneCups{
    "M-100 56C-92 50-80 52-77 60C-74 72-74 86-77 96C-80 104-92 106-100 100C-108 92-109 64-100 56Z"
    "M100 56C92 50 80 52 77 60C74 72 74 86 77 96C80 104 92 106 100 100C108 92 109 64 100 56Z"};

inline constexpr Art headphonePads{"M-79 62C-76 72-76 86-79 95M79 62C76 72 76 86 79 95"};

inline constexpr Art headphoneShine{"M-98 66C-100 72-100 80-99 86M97 66C99 70 99 74 99 78"};

inline constexpr Art sleepMask{
    "M-54-6C-52-24-24-26 0-19C24-26 52-24 54-6C56 13 36 22 19 17C10 14 7 6 0 6C-7 6-10 14-19 17"
    "C-36 22-56 13-54-6Z"};

inline constexpr Art sleepMaskStrap{"M-52-9C-66-8-80-3-92 7M52-9C66-8 80-3 92 7"};

inline constexpr Art sleepMaskStitches{
    "M-41-4C-36 4-24 4-19-4M19-4C24 4 36 4 41-4M-38 0L-41 4M-30 2.2L-30 7M-22 0L-19 4M38 0L41 4"
    "M30 2.2L30 7M22 0L19 4"};

inline constexpr Art bandage{"M-23-8C-27-7-29-3-28 1C-28 6-24 9-20 8L20 8C25 8 28 5 28 0C28-5 25-8 20-8Z"};

inline constexpr Art bandagePad{"M-9-8L9-8L9 8L-9 8Z"};

inline constexpr Art bandageSpot{"M-20-3h.1M-16 3h.1M20-3h.1M16 3h.1M-4-3h.1M4-3h.1M-4 3h.1M4 3h.1"};

} // namespace quietlark::SoftWumble
