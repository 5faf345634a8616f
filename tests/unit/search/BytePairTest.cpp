// The search for two bytes at a fixed distance, in blocks and one by one.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "search/BytePair.h"

namespace ordalyn {
namespace {

// The places that a pair is asked about, each once. The text lies in memory of exactly its size, so
// that reading behind it is noticed.
std::vector<std::size_t> Places(const BytePair& pair, const std::string& text, bool oneByOne) {
    const auto memory = std::make_unique<char[]>(text.size());
    text.copy(memory.get(), text.size());
    std::vector<std::size_t> places;
    const auto look = [&](const char* at) {
        const auto place = static_cast<std::size_t>(at - memory.get());
        if (places.empty() || places.back() < place)
            places.push_back(place);
        return false;
    };
    if (text.size() <= pair.Distance())
        return places;
    const char* const end = memory.get() + text.size() - pair.Distance();
    EXPECT_EQ(
        oneByOne ? pair.FindOneByOne(memory.get(), end, look) : pair.Find(memory.get(), end, look),
        nullptr);
    return places;
}

TEST(BytePair, FindsAPairAtEveryPlaceOfEveryLength) {
    const BytePair pair({'x', 'X'}, {'y', 'Y'}, 3);
    for (std::size_t size = 4; size < 70; ++size) {
        for (std::size_t place = 0; place + 3 < size; ++place) {
            std::string text(size, '.');
            text[place] = place % 2 == 0 ? 'x' : 'X';
            text[place + 3] = place % 3 == 0 ? 'y' : 'Y';
            EXPECT_EQ(Places(pair, text, false), std::vector<std::size_t>{place}) << size;
        }
    }
}

TEST(BytePair, OneByteAloneIsNoPair) {
    const BytePair pair({'x', 'X'}, {'y', 'Y'}, 1);
    EXPECT_TRUE(Places(pair, "x..x..x..x..x..x..x..x..x", false).empty());
    EXPECT_TRUE(Places(pair, "y..y..yx.y..y..y..y..y..yx", false).empty());
}

TEST(BytePair, StopsAtTheFirstYes) {
    const BytePair pair({'x', 'x'}, {'x', 'x'}, 0);
    const std::string text = "..x....x.........................x....";
    int asked = 0;
    EXPECT_EQ(pair.Find(text.data(), text.data() + text.size(),
                        [&](const char*) { return ++asked == 2; }),
              text.data() + 7);
    EXPECT_EQ(asked, 2);
}

TEST(BytePair, BothWaysAskAboutTheSamePlaces) {
    std::mt19937 random(4711);
    for (int round = 0; round < 3000; ++round) {
        std::string text(random() % 90, '\0');
        for (char& c : text)
            c = static_cast<char>("abAB\xC3\xA9z"[random() % 7]);
        const BytePair pair({'a', 'A'}, {'b', 0xC3}, random() % 20);
        EXPECT_EQ(Places(pair, text, false), Places(pair, text, true)) << text;
    }
}

}  // namespace
}  // namespace ordalyn
