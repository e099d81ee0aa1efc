#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "core/lists/RegistryKey.h"

namespace fidaleon {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Settings that can be enumerated and deleted from.
class Almacen : public Settings {
 public:
  std::string read(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& byDefault) const override {
    const auto found = values_.find({application, section, key});
    return found == values_.end() ? byDefault : found->second;
  }
  void write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override {
    values_[{application, section, key}] = value;
  }
  std::vector<Name> names(const std::string& application) const override {
    std::vector<Name> all;
    for (const auto& [name, value] : values_)
      if (std::get<0>(name) == application) all.push_back({std::get<1>(name), std::get<2>(name)});
    return all;
  }
  void remove(const std::string& application, const std::string& section,
              const std::string& key) override {
    values_.erase({application, section, key});
  }

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

TEST(RegistryKey, keyThatIsNotThere_doesNotOpen) {
  Almacen almacen;
  RegistryKey clave(almacen);
  EXPECT_FALSE(clave.OpenKey("Fidaleon", "ana"));
  EXPECT_EQ(clave.Handle(), 0);
  EXPECT_THROW(clave.Value("x"), std::logic_error);
}

TEST(RegistryKey, createdKeyWithoutValues_isThereAndShowsNone) {
  Almacen almacen;
  RegistryKey(almacen).CreateKey("Fidaleon", "ana\\Castellano");
  RegistryKey clave(almacen);
  ASSERT_TRUE(clave.OpenKey("Fidaleon", "ana\\Castellano"));
  EXPECT_NE(clave.Handle(), 0);
  EXPECT_THAT(clave.ValueNames(), IsEmpty());
  EXPECT_FALSE(RegistryKey(almacen).OpenKey("Otro", "ana\\Castellano"));
}

TEST(RegistryKey, valuesAndKeysUnderIt_areListedOnceAndDeleted) {
  Almacen almacen;
  for (const char* seccion : {"ana", "ana\\G", "ana\\G x", "ana\\G\\uno", "ana\\G\\dos", "anabel"})
    almacen.write("Fidaleon", seccion, "a", "1");
  RegistryKey clave(almacen);
  ASSERT_TRUE(clave.OpenKey("Fidaleon", "ana"));
  EXPECT_THAT(clave.SubKeyNames(), ElementsAre("G", "G x"));
  clave.Value("b", "2");
  EXPECT_THAT(clave.ValueNames(), ElementsAre("a", "b"));
  clave.DeleteValue("a");
  EXPECT_THAT(clave.ValueNames(), ElementsAre("b"));
  EXPECT_EQ(clave.Value("b"), "2");
  clave.DeleteKey("G");
  EXPECT_THAT(clave.SubKeyNames(), ElementsAre("G x"));
  EXPECT_EQ(almacen.read("Fidaleon", "anabel", "a", ""), "1");
  clave.CloseKey();
  EXPECT_THROW(clave.ValueNames(), std::logic_error);
}

}  // namespace
}  // namespace fidaleon
