#pragma once

#include <string>

#include "store/Engine.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

/// Number of the error (Busy) of whoever finds another at it.
inline constexpr int kBeingUpgraded = -1;

/// Brings a database in line with a schema. The table Esquema of the database names the schema
/// and its version.
class Installer {
 public:
  Installer(Engine& engine, const Schema& schema) : engine_(engine), schema_(schema) {}

  /// All tables, indexes and first rows, as one step.
  void create();
  /// The same for a database that is still to be filled: it counts as none until it is finished.
  void createUnfinished();
  bool isUnfinished();
  void finish();
  /// Takes all tables of the schema away, with their rows.
  void remove();
  /// Whether there is anything of this program.
  bool isThere();
  /// Throws NotADatabase for a database of another kind, NewerSchema for a newer one. An older
  /// one gets what it lacks, as one step; while another workstation is at that, it throws Busy
  /// with kBeingUpgraded.
  void upgrade();
  /// The version kept in the database; throws NotADatabase when it is none of this schema.
  int version();

  /// Builds indexes anew when the libraries of this machine order text in another way than those
  /// that wrote the database.
  void adoptTextOrder();

 private:
  void createAs(const std::string& name);
  void upgradeAlone();
  void addSince(int version);
  std::string storedName();
  std::string unfinishedName() const { return schema_.name() + " (a medias)"; }
  void addRows(const Table& table);
  Value stored(const std::string& column);
  std::string valueText(const Value& value) const;

  Engine& engine_;
  const Schema& schema_;
};

}  // namespace fidaleon::store
