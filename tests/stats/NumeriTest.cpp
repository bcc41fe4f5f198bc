#include <gtest/gtest.h>

#include "stats/Numeri.h"

namespace lottolab::stats {

TEST(FuoriX, RiduceNelCerchio) {
  EXPECT_EQ(Fuori90(0), 90);
  EXPECT_EQ(Fuori90(91), 1);
}

}  // namespace lottolab::stats
