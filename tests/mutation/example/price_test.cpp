#include "price.h"

#include <gtest/gtest.h>

TEST(Price, HasTaxRoundedUp) {
    EXPECT_EQ(withTax(100, 19), 119);
    EXPECT_EQ(withTax(101, 1), 103);
}

TEST(Total, IsOfAllThatCosts) {
    const int cents[] = {100, -5, 200, 1 << 20};
    EXPECT_EQ(total(cents, 0), 0);
    EXPECT_EQ(total(cents, 3), 357);
}
