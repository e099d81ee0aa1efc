#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace fidaleon::support {

/// Application, section and key of a setting.
using SettingName = std::tuple<std::string, std::string, std::string>;
using SettingValues = std::map<SettingName, std::string>;

/// The content of the settings file: "[application/section]" over lines "key=value". What these
/// marks or line ends would confuse is written as "%" and two hexadecimal digits.
std::string formatSettings(const SettingValues& values);

struct ReadSettings {
  SettingValues values;
  bool damaged = false;  // some of it could not be understood; the rest is in `values`
};
ReadSettings parseSettings(std::string_view content);

}  // namespace fidaleon::support
