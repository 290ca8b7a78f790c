#include "cli/words.h"

#include <gmock/gmock.h>

#include <climits>
#include <functional>

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;

using TextList = std::vector<std::string>;

// What the reader says of the words; empty when it takes them.
std::string Refusal(const TextList& list, const std::function<void(Words&)>& read) {
    Words words(list);
    try {
        read(words);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "";
}

TEST(WordsTest, WholeNumbersAreDecimalAndWithinTheirRange) {
    const auto read = [](Words& words) { words.Integer("N", 1, 256); };
    for (const char* good : {"1", "256", "0017"})
        EXPECT_EQ(Refusal({good}, read), "") << good;
    for (const char* malformed : {"", "-", "+5", "5.0", "0x10", "5 ", " 5", "1e2", "five"})
        EXPECT_EQ(Refusal({malformed}, read), "N must be a whole number") << malformed;
    for (const char* outside : {"0", "-5", "257", "99999999999999999999"})
        EXPECT_EQ(Refusal({outside}, read), "N must be from 1 to 256") << outside;
    EXPECT_EQ(Refusal({}, read), "N is missing");
    EXPECT_EQ(Refusal({"-1"}, [](Words& words) { words.Integer("N", 0); }), "N must be 0 or more");
}

TEST(WordsTest, UnboundedNumbersStopAtTheEndsOfInt) {
    const TextList list{"99999999999", "-99999999999"};
    Words words(list);
    EXPECT_EQ(words.Integer("W"), INT_MAX);
    EXPECT_EQ(words.Integer("H"), INT_MIN);
}

TEST(WordsTest, AListEndsAtTheFirstWordThatIsNoNumber) {
    const TextList list{"10", "-20", "30", "-x", "40"};
    Words words(list);
    EXPECT_THAT(words.Integers("V", -100, 100), ElementsAre(10, -20, 30));
    EXPECT_EQ(words.Next(), "-x");

    const auto read = [](Words& arguments) { arguments.Integers("V", 0, 100, 3); };
    EXPECT_EQ(Refusal({"info"}, read), "V must be a whole number");
    EXPECT_EQ(Refusal({"1", "2.5"}, read), "V must be a whole number");
    EXPECT_EQ(Refusal({"1", "-2"}, read), "V must be from 0 to 100");
    EXPECT_EQ(Refusal({"1", "2", "3", "4"}, read), "more than 3 numbers");
}

TEST(WordsTest, NumbersMayHaveDecimals) {
    const TextList list{"0.25", "20"};
    Words words(list);
    EXPECT_EQ(words.PositiveNumber("Z", 20), 0.25);
    EXPECT_EQ(words.PositiveNumber("Z", 20), 20);
    for (const char* bad : {"0", "-1", "20.01", "nan", "inf", "1e1", "1x", "", "."}) {
        EXPECT_EQ(Refusal({bad}, [](Words& arguments) { arguments.PositiveNumber("Z", 20); }),
                  "Z must be a number above 0, up to 20")
            << bad;
    }
}

TEST(WordsTest, ColoursHaveSixOrEightDigits) {
    const TextList list{"#12abEF", "#0012abEF"};
    Words words(list);
    EXPECT_EQ(words.Color("C"), 0xFF12ABEF);
    EXPECT_EQ(words.Color("C"), 0x0012ABEFU);
    for (const char* bad : {"", "#", "123456", "#12345", "#1234567", "#123456789", "#12345g",
                            "#-12345", "#+12345", "#12 456"}) {
        EXPECT_EQ(Refusal({bad}, [](Words& arguments) { arguments.Color("C"); }),
                  "C must be a colour: #RRGGBB or #AARRGGBB")
            << bad;
    }
}

TEST(WordsTest, AnEmptyPathIsRefused) {
    EXPECT_EQ(Refusal({""}, [](Words& words) { words.Path("PATH"); }),
              "PATH must be the name of a file");
}

TEST(WordsTest, JoinedWordsCouldBeTyped) {
    EXPECT_EQ(JoinWords(TextList{"open", "a b.png", "", "c"}), "open \"a b.png\" \"\" c");
}

}  // namespace
}  // namespace orbelle::cli
