// The "AI" value of a scheduled scan: its layout byte for byte, the
// scrambling (checked against bytes worked out by hand from the rule, not
// by the code under test), round trips, and a reader that takes nothing on
// trust from a value another program may have written.

#include "schedule/AccountValue.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string FromHex(const std::string& hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    return bytes;
}

// "admin" and "s3cret" from the seed 0x5C3A: o = c ^ (key >> 8), then
// key = (o + key) * 52845 + 22719 modulo 65536.
const std::string kAdminValue = FromHex("060000003d1dd4bd9800070000002f1c1a9f003900");

TEST(AccountValue, TheBytesFollowTheLayoutAndTheScrambling) {
    EXPECT_EQ(EncodeAccountValue("admin", "s3cret"), kAdminValue);
}

TEST(AccountValue, EmptyTextsStillGiveATenByteValue) {
    const std::string value = EncodeAccountValue("", "");
    EXPECT_EQ(value, FromHex("01000000000100000000"));
    ASSERT_TRUE(ParseAccountValue(value.data(), value.size()).has_value());
}

TEST(AccountValue, A255CharacterUserNameWithAnEmptyPasswordGives265Bytes) {
    const std::string user(255, 'u');
    const std::string value = EncodeAccountValue(user, "");
    EXPECT_EQ(value.size(), 265U);
    EXPECT_EQ(static_cast<uint8_t>(value[0]), 0U);  // 256 = 0x100, little-endian
    EXPECT_EQ(static_cast<uint8_t>(value[1]), 1U);
    const auto parsed = ParseAccountValue(value.data(), value.size());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->user, user);
    EXPECT_EQ(parsed->password, "");
}

TEST(AccountValue, ThePasswordDoesNotStandInTheValueInPlainText) {
    const std::string value = EncodeAccountValue("operator", "Blue-Heron 42");
    EXPECT_EQ(value.find("Blue-Heron"), std::string::npos);
    EXPECT_EQ(value.find("operator"), std::string::npos);
}

TEST(AccountValue, EachTextStartsFromTheSeedOnItsOwn) {
    const std::string value = EncodeAccountValue("same", "same");
    EXPECT_EQ(value.substr(4, 4), value.substr(13, 4));
}

TEST(AccountValue, RoundTripsKeepEveryByteButNul) {
    std::string every;
    for (int c = 1; c < 256; ++c) every.push_back(static_cast<char>(c));
    const std::string value = EncodeAccountValue(every, "p\xffw");
    const auto parsed = ParseAccountValue(value.data(), value.size());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->user, every);
    EXPECT_EQ(parsed->password, "p\xffw");
    EXPECT_EQ(UnscrambleAccountText(ScrambleAccountText(every)), every);
}

TEST(AccountValue, ATextEndsAtItsFirstNul) {
    const std::string value = EncodeAccountValue(std::string("ab\0cd", 5), "x");
    EXPECT_EQ(value, EncodeAccountValue("ab", "x"));
}

TEST(AccountValue, TheReaderRefusesWhatDoesNotFitItsBytes) {
    const std::string good = kAdminValue;
    // Every shorter piece of a good value is refused.
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(ParseAccountValue(good.data(), size).has_value()) << size;
    // Bytes left over.
    const std::string longer = good + "x";
    EXPECT_FALSE(ParseAccountValue(longer.data(), longer.size()).has_value());
    // A length word past the end, a length of 0, a text without its zero.
    std::string huge = good;
    huge[3] = '\x7f';
    EXPECT_FALSE(ParseAccountValue(huge.data(), huge.size()).has_value());
    std::string zero = good;
    zero[0] = '\0';
    EXPECT_FALSE(ParseAccountValue(zero.data(), zero.size()).has_value());
    std::string unterminated = good;
    unterminated[9] = 'x';
    EXPECT_FALSE(ParseAccountValue(unterminated.data(), unterminated.size()).has_value());
    EXPECT_FALSE(ParseAccountValue(nullptr, 10).has_value());
}

TEST(AccountValue, TheReaderGivesBackWhatTheWriterWrote) {
    const auto parsed = ParseAccountValue(kAdminValue.data(), kAdminValue.size());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(*parsed, (AccountValue{"admin", "s3cret"}));
}

}  // namespace
