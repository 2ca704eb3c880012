#pragma once

#include "Quietlark/Pet/Art/Art.h"

/// Faces: low, wide, and small. Everything lies at its place in the box; eyes about x 97 and 171, the mouth
/// between.
namespace quietlark::SoftWumble {

inline constexpr double eyeLeft = 97;
inline constexpr double eyeRight = 171;
inline constexpr double eyeLevel = 165;
inline constexpr double mouthX = 134;
inline constexpr double mouthLevel = 177;

/// One eye around its own origin.
inline constexpr Art dotEye{
    "M0-6.4C3.6-6.4 5.6-3.4 5.6 0C5.6 3.5 3.5 6.4 0 6.4C-3.5 6.4-5.6 3.5-5.6 0C-5.6-3.4-3.6-6.4 0-6.4"
    "Z"};
inline constexpr Art roundEye{
    "M0-6.8C3.9-6.8 6.4-3.7 6.4 0C6.4 3.8 3.8 6.8 0 6.8C-3.8 6.8-6.4 3.8-6.4 0C-6.4-3.7-3.9-6.8 0-6.8Z"};
inline constexpr Art beanEye{
    "M1-7.6C4.2-7.8 5-4.6 4.7-1C4.4 3.4 3.4 7.4 0 7.5C-3.6 7.6-4.9 4.4-4.6.6C-4.3-3.4-2.4-7.4 1-7.6Z"};
inline constexpr Art surprisedEye{
    "M0-7.6C4-7.6 6.2-4.2 6.2 0C6.2 4.3 3.9 7.6 0 7.6C-3.9 7.6-6.2 4.3-6.2 0C-6.2-4.2-4-7.6 0-7.6Z"};
inline constexpr Art eyeShine{
    "M-1.9-3.9C-.6-4.2.6-3.2.6-1.9C.6-.7-.4.2-1.6.2C-2.8.2-3.7-.8-3.6-2C-3.5-3-2.8-3.8-1.9-3.9Z"};

/// Pairs of eyes.
inline constexpr Art almondEyes{
    "M87.5 164.5C91 159 101.5 158.5 106.5 165.5C101.5 171.5 92 171.5 87.5 164.5ZM180.5 164.5"
    "C177 159 166.5 158.5 161.5 165.5C166.5 171.5 176 171.5 180.5 164.5Z"};
inline constexpr Art sleepyEyes{
    "M88 164.5C92 170.5 102 170.5 106 164.5M162 164.5C166 170.5 176 170.5 180 164.5"};
inline constexpr Art sleepyLashes{"M88 164.5L85 166.8M180 164.5L183 166.8M91 168L89 171M177 168L179 171"};
inline constexpr Art smilingEyes{
    "M88.5 168.5C91.5 160 102.5 160 105.5 168.5M162.5 168.5C165.5 160 176.5 160 179.5 168.5"};
inline constexpr Art blinkEyes{"M89 166C93 168.6 101 168.6 105 166M163 166C167 168.6 175 168.6 179 166"};
inline constexpr Art winkEye{"M163 168.2C166.5 161.5 175.5 161.5 179 167.5"};
inline constexpr Art droopyBowl{"M90.8 164.8C94 162.8 99 161.4 103 161.6C106.2 165.4 104.6 173 98.3 "
                                "173.1C91.8 173.2 89.2 169 90.8 164.8ZM177.2 164.8C174 162.8 169 161.4 165 "
                                "161.6C161.8 165.4 163.4 173 169.7 173.1C176.2 173.2 178.8 169 177.2 164.8Z"};
inline constexpr Art droopyLid{
    "M87 166.8C90.5 163.4 97.5 160.6 104.5 161.2M181 166.8C177.5 163.4 170.5 160.6 163.5 161.2"};
/// A spiral around its own origin.
inline constexpr Art dizzyEye{"M.5 0C1.8-.8 1.2-3-.8-2.8C-3.8-2.6-4 1.6-1.8 3C1.6 5 5.6 2.2 "
                              "5.2-1.6C4.8-5.8.2-7.6-3.2-6.4C-5.4-5.6-6.8-3.8-7.2-1.6"};

inline constexpr Art curiousBrows{"M90 150.5C94 146.8 100 146.4 104.5 149M164 153C168 151 174 151 178 153.5"};
inline constexpr Art focusedBrows{
    "M90 152.5C94.5 151 100 151.6 104.5 153.8M178 152.5C173.5 151 168 151.6 163.5 153.8"};
inline constexpr Art worriedBrows{
    "M89 154.5C93 151 98 149.5 103 149.8M179 154.5C175 151 170 149.5 165 149.8"};

inline constexpr Art smileMouth{"M126 175.5C129 181.5 139 181.5 142 175.5"};
inline constexpr Art smallSmile{"M129 176C130.8 179.4 137.2 179.4 139 176"};
inline constexpr Art catMouth{"M122 175C123.5 180.5 132 181.2 134 175.5C136 181.2 144.5 180.5 146 175"};
inline constexpr Art flatMouth{"M127 178Q133 174 139 178"};
inline constexpr Art wavyMouth{"M123.5 178C126 174.2 129 174.6 131.5 177.4C134 180.2 137 180.2 139.5 "
                               "177C141.3 174.8 143.4 174.8 145 176.6"};
inline constexpr Art tinyMouth{
    "M134 173.5C136.6 173.5 138.2 175.4 138.2 177.9C138.2 180.6 136.5 182.3 134 182.3C131.5 182.3 129.8 "
    "180.6 129.8 177.9C129.8 175.4 131.4 173.5 134 173.5Z"};
inline constexpr Art surprisedMouth{
    "M134 172.4C137.3 172.4 139.3 175.2 139.3 178.8C139.3 182.6 137.2 185.2 134 185.2C130.8 185.2 128.7 "
    "182.6 128.7 178.8C128.7 175.2 130.7 172.4 134 172.4Z"};
inline constexpr Art happyMouth{
    "M124 174.5C129 176.2 139 176.2 144 174.5C145.2 174.2 145.8 175 145.5 176.2C144 182.4 139.6 186.3 134 "
    "186.3C128.4 186.3 124 182.4 122.5 176.2C122.2 175 122.8 174.2 124 174.5Z"};
inline constexpr Art happyTongue{"M127.5 183C129.5 180.6 138.5 180.6 140.5 183C138.8 185.2 136.6 186.3 134 "
                                 "186.3C131.4 186.3 129.2 185.2 127.5 183Z"};
inline constexpr Art bashfulMouth{
    "M128.5 177.5C130.5 175.6 132.5 179.8 134.5 178C136.2 176.5 137.6 176.4 139.5 178.2"};

/// A cheek around its own origin, for the left side.
inline constexpr Art blushCheek{
    "M-11.5.5C-11.5-4-6-6.5.5-6.3C7-6 11.5-3.5 11.2.8C10.9 5 6 7-.5 6.8C-6.5 6.6-11.5 4.6-11.5.5Z"};
inline constexpr Art freckleCheek{
    "M-8-2.6C-6.4-2.8-5.4-1.6-5.6-.2C-5.8 1.2-7 1.9-8.4 1.6C-9.7 1.3-10.2.1-9.9-1.1C-9.6-2-8.9-2.5-8-2.6Z"
    "M1-4.8C2.6-5 3.6-3.8 3.4-2.4C3.2-1 2-.3.6-.6C-.7-.9-1.2-2.1-.9-3.3C-.6-4.2.1-4.7 1-4.8Z"
    "M2.6 3.4C4.2 3.2 5.2 4.4 5 5.8C4.8 7.2 3.6 7.9 2.2 7.6C.9 7.3.4 6.1.7 4.9C1 4 1.7 3.5 2.6 3.4Z"
    "M9.4-1.4C11-1.6 12-.4 11.8 1C11.6 2.4 10.4 3.1 9 2.8C7.7 2.5 7.2 1.3 7.5.1C7.8-.8 8.5-1.3 9.4-1.4Z"};

/// A paw around its own origin, the left one: the hand at the top, the wrist fading into the body.
inline constexpr Art bean{
    "M-1-13C7-14 13-8 13.5 1C14 10 9 16.5.5 16.5C-8 16.5-13.5 10.5-13 1.5C-12.6-6.5-8-12.3-1-13Z"};
inline constexpr Art beanShade{
    "M-11.4 6C-9 14 8 15.5 12.6 6.5C12.3 13 7.5 16.7.5 16.5C-6 16.4-10.6 12.6-11.4 6Z"};

inline constexpr Art beanToes{"M-4.2 8.5L-4.2 13.5M4.4 8.5L4.4 13.5"};

/// An arm laid over the belly, the left one around its shoulder; open where it comes out of the body.
inline constexpr Art hugArm{"M-15 9C2 2 28 6 48 17C60 24 59 41 45 43C26 45 2 41-14 34"};
inline constexpr Art hugToes{"M56 30L49 28M53 38.5L46.5 34.5"};

} // namespace quietlark::SoftWumble
