#pragma once

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

 private:
  void refresh() const;
  void setAside() const;
  void save() const;

  std::filesystem::path file_;
  Report report_;
  // What the file held when it was last looked at.
  mutable SettingValues values_;
  mutable std::filesystem::file_time_type seen_{};
  mutable std::uintmax_t seenSize_ = 0;
};

}  // namespace fidaleon::support
