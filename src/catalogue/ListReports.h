#pragma once

#include <string>
#include <vector>

#include "core/facade/cNucleo.h"

namespace fidaleon::app {

/// A report on the people or tasks of the parish. It stands under a node of its own, and can be
/// asked for from the list whose rows it prints.
struct ListReport {
  std::string node;
  std::string list;  // empty when another report is the one of that list
  std::string templateName;
  const char* title;
  void (cNucleo::*chosen)(FDAPI::Conexion& parish, FDAPI::Conexion& reports) = nullptr;
  void (cNucleo::*entire)(FDAPI::Conexion& parish, FDAPI::Conexion& reports,
                          FDAPI::cProgreso& progress) = nullptr;
};

const std::vector<ListReport>& listReports();
/// By the node of the report or that of the list; null when there is none.
const ListReport* findListReport(const std::string& node);

}  // namespace fidaleon::app
