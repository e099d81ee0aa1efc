#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/facade/Documentos.h"
#include "paper/Report.h"

namespace fidaleon::app {

class Desk;

/// The same document of several entries, one after the other, each made as it would be alone. What
/// the user would be told of each is kept instead, and who signs and which day it bears is asked
/// once: the keeper for each institution.
class DocumentBatch {
 public:
  /// Both must outlive it.
  DocumentBatch(Desk& desk, const Documento& document);
  ~DocumentBatch();
  DocumentBatch(const DocumentBatch&) = delete;
  DocumentBatch& operator=(const DocumentBatch&) = delete;

  /// Nothing when there can be none of that entry; told() says why. What makeReport throws comes
  /// back like that too.
  std::optional<paper::Report> make(std::int32_t id);
  /// What there is to know of the last one, in lines; empty when there is nothing.
  const std::string& told() const { return told_; }
  /// The user did not say who signs, or the day: there are to be no more.
  bool givenUp() const;

 private:
  class Answers;
  Desk& desk_;
  const Documento& document_;
  std::unique_ptr<Answers> answers_;
  std::string told_;
};

}  // namespace fidaleon::app
