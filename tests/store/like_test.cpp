#include "store/like.h"

#include <gtest/gtest.h>

using store::Pattern;

TEST(LikePattern, TakesTheStarAloneForAWildCard) {
    EXPECT_TRUE(Pattern("*").matches(""));
    EXPECT_TRUE(Pattern("**").matches("anything\nat all"));
    EXPECT_TRUE(Pattern("*b*").matches("abc"));
    EXPECT_TRUE(Pattern("a*c").matches("abbc"));
    EXPECT_TRUE(Pattern("a*c").matches("ac"));
    EXPECT_FALSE(Pattern("a*c").matches("abcd"));
    EXPECT_FALSE(Pattern("abc").matches("abcd"));
    EXPECT_TRUE(Pattern("abc").matches("abc"));
    EXPECT_FALSE(Pattern("").matches("a"));
    EXPECT_TRUE(Pattern("").matches(""));
}

TEST(LikePattern, TakesEveryOtherSignForItself) {
    EXPECT_TRUE(Pattern("*c:\\echo#1[a]_%?.bmp*").matches("C:\\ECHO#1[A]_%?.BMP"));
    EXPECT_FALSE(Pattern("a?c").matches("abc"));
    EXPECT_FALSE(Pattern("a#c").matches("a1c"));
    EXPECT_FALSE(Pattern("a_c").matches("abc"));
    EXPECT_FALSE(Pattern("a%c").matches("abbc"));
    EXPECT_FALSE(Pattern("[abc]").matches("b"));
}

TEST(LikePattern, IgnoresCaseAndMindsAccents) {
    EXPECT_TRUE(Pattern("*rétréc*").matches("RÉTRÉCISSEMENT"));
    EXPECT_TRUE(Pattern("ŒDÈME").matches("œdème"));
    EXPECT_FALSE(Pattern("*retrec*").matches("RÉTRÉCISSEMENT"));
    EXPECT_FALSE(Pattern("oedème").matches("œdème"));
    EXPECT_FALSE(Pattern("DALMEIDA").matches("D'ALMEIDA"));
}

TEST(LikePattern, LetsNoPieceServeTwice) {
    EXPECT_FALSE(Pattern("ab*ba").matches("aba"));
    EXPECT_TRUE(Pattern("ab*ba").matches("abba"));
    EXPECT_FALSE(Pattern("*aa*aa*").matches("aaa"));
    EXPECT_TRUE(Pattern("*aa*aa*").matches("aaxaa"));
    EXPECT_TRUE(Pattern("a*b*c").matches("a-b-b-c"));
    EXPECT_FALSE(Pattern("a*b*c").matches("a-c-b"));
}
