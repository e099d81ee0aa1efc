#pragma once

#include <map>
#include <string>
#include <tuple>

#include "core/contract/Entorno.h"

namespace fidaleon::support {

/// Settings that are gone with the object.
class MemorySettings : public Settings {
 public:
  std::string read(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& byDefault = {}) const override {
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
  bool has(const std::string& application, const std::string& section,
           const std::string& key) const {
    return values_.count({application, section, key}) != 0;
  }

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

}  // namespace fidaleon::support
