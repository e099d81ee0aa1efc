#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "core/contract/Entorno.h"
#include "support/SettingsText.h"

namespace fidaleon::support {

/// Settings in a text file. Several programs may use it at once: each write takes up what the
/// others have written, and readers never see half a file. A damaged file is kept aside with the
/// ending ".danado", what could be read of it is kept, and the damage is reported once.
class FileSettings : public Settings {
 public:
  using Report = std::function<void(const std::string& message)>;
  /// The file and its folder come into being with the first write.
  explicit FileSettings(std::filesystem::path file, Report report = {});

  /// "fidaleon/ajustes.ini" in the user's configuration folder ($XDG_CONFIG_HOME or ~/.config).
  static std::filesystem::path defaultFile();

  std::string read(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& byDefault = {}) const override;
  void write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;
  std::vector<Name> names(const std::string& application) const override;
  void remove(const std::string& application, const std::string& section,
              const std::string& key) override;

 private:
  /// Makes a change to what the file holds at that moment; `change` says whether there was one.
  void update(const std::function<bool(SettingValues&)>& change);
  /// What the file is now; any difference means that somebody has written it.
  struct Stamp {
    std::uint64_t inode = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    std::int64_t size = 0;
    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  Stamp stamp() const;
  void refresh() const;
  void load() const;
  void mend() const;
  void save(SettingValues values) const;

  std::filesystem::path file_;
  Report report_;
  // What the file held when it was last looked at.
  mutable SettingValues values_;
  mutable Stamp seen_;
  mutable bool damaged_ = false;
};

}  // namespace fidaleon::support
