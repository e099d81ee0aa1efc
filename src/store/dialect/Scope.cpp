#include "store/dialect/Scope.h"

#include "text/Utf8.h"

namespace fidaleon::store {

void Scope::add(const Table& table, std::string_view alias) {
  sources_.push_back({&table, alias.empty() ? table.name() : std::string(alias)});
}

std::optional<Scope::Found> Scope::column(std::string_view name) const {
  for (const Source& source : sources_) {
    if (const Column* column = source.table->find(name)) return Found{&source, column};
  }
  return outer_ != nullptr ? outer_->column(name) : std::nullopt;
}

std::optional<Scope::Found> Scope::column(std::string_view sourceName,
                                          std::string_view name) const {
  const Source* found = source(sourceName);
  const Column* column = found != nullptr ? found->table->find(name) : nullptr;
  return column != nullptr ? std::optional(Found{found, column}) : std::nullopt;
}

const Scope::Source* Scope::source(std::string_view name) const {
  for (const Source& source : sources_) {
    if (text::equalsNoCase(source.exposed, name)) return &source;
  }
  return outer_ != nullptr ? outer_->source(name) : nullptr;
}

const Scope::Alias* Scope::alias(std::string_view name) const {
  for (const Alias& alias : aliases_) {
    if (text::equalsNoCase(alias.name, name)) return &alias;
  }
  return nullptr;
}

}  // namespace fidaleon::store
