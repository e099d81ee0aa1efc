#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::paper {

enum class Edition { Base, Menorca, Santiago };

/// Which template shows what an operation of cNucleo wrote, and under which name.
struct Document {
  // ImprimirDuplicadas stands here once for each sacrament, whose name follows. What a SelInf...
  // wrote has the document of the Informe... that it chooses from.
  std::string operation;
  std::string templateName;
  QString title;
  Edition edition = Edition::Base;
  bool signedByKeeper = false;  // the operation takes the keeper of the archive and a date
};

const std::vector<Document>& documentCatalogue();

/// Null when no document belongs to the operation.
const Document* documentOf(std::string_view operation);

}  // namespace fidaleon::paper
