#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/TestWorld.h"

namespace {

using fidaleon::tests::TestWorld;

TEST(TestWorld, Lives) {
  TestWorld w;
  const auto town = w.municipio("Alcalá de Henares", "Madrid");
  const auto id = w.institucion("San Pedro", town);
  EXPECT_EQ(w.contexto.fidaleon()->PROVINCIA(w.con(), town), "Madrid");
  EXPECT_EQ(id, 1);
  EXPECT_EQ(fidaleon::directorioDe(w.con()), w.directory.path().string());
}

}  // namespace
