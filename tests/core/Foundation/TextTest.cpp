#include "WumbleCore/Foundation/Text.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

TEST(Text, trimsTheWhiteSpaceOfAllScriptsButNotPartsOfCharacters) {
    EXPECT_EQ(trimmed(" \t\r\n\u00a0\u3000a b\u2003\u2028 "), "a b");
    EXPECT_EQ(trimmed("\u2003\u00a0"), "");
    EXPECT_EQ(trimmed("\u00e0"), "\u00e0"); // its last byte is that of a no-break space
    EXPECT_EQ(trimmed("\xa0"
                      "a"),
              "\xa0"
              "a");
}

TEST(Text, lowersTheLettersOfAsciiOnly) { EXPECT_EQ(lowerCased("AZ@[\u00c4z"), "az@[\u00c4z"); }

} // namespace
} // namespace wumble
