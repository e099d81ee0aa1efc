#pragma once

#include "parish/Desk.h"
#include "parish/NewParish.h"
#include "sample/SampleParish.h"
#include "support/TestWorld.h"

namespace fidaleon::app {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using tests::Answer;
using tests::FormDriver;
using tests::FullDisk;
using tests::OtherProcess;
using tests::TempDirectory;

/// A parish in a directory of its own that goes with the test.
class ParishTest : public ::testing::Test {
 protected:
  NewParish described(Content content = Content::Sample) const {
    NewParish p;
    p.name = "San Blas";
    p.edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
    p.user = "Secretaría";
    p.town = "Buitrago del Lozoya";
    p.province = 28;
    p.content = content;
    p.directory = directory();
    return p;
  }
  std::filesystem::path directory() const { return dir_.path(); }
  ParishFiles files() const { return ParishFiles(directory()); }

  void create(Content content = Content::Sample) {
    createParish(described(content), clock.today(), fillSampleParish);
    open();
  }
  void open() { desk = std::make_unique<Desk>(files(), "Secretaría", user, settings, clock); }

  std::int64_t count(const std::string& sql) {
    return desk->parish().Execute(sql).Fields(0).Value().integer();
  }
  std::int64_t rowsOf(const std::string& sql) { return desk->parish().Execute(sql).RecordCount(); }

  TempDirectory dir_;
  tests::TestUser user;
  support::MemorySettings settings;
  support::FixedClock clock{{2026, 5, 20}};
  std::unique_ptr<Desk> desk;
};

}  // namespace fidaleon::app
