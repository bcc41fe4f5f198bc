#include <gtest/gtest.h>

#include "archive/ClsEstrazioni.h"

namespace lottolab {
namespace {

TEST(CodificaRecord, PlaceholderRoundTrip) {
  Estrazione e;
  e.id_estr = 1;
  unsigned char b[kByteRecordArchivio];
  CodificaRecord(e, b);
  EXPECT_EQ(DecodificaRecord(b), e);
}

}  // namespace
}  // namespace lottolab
