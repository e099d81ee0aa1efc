#include "printing/ReportProgress.h"

namespace fidaleon::app {

ReportProgress::~ReportProgress() {
  close();
}

void ReportProgress::Cargar(std::int64_t cuenta, const std::string& mensaje, int, int) {
  close();
  ui_.progressOpen(cuenta, mensaje);
  open_ = began_ = true;
}

void ReportProgress::setValue(std::int64_t valor) {
  if (open_) ui_.progressMove(valor);
}

void ReportProgress::close() {
  if (open_) ui_.progressClose();
  open_ = false;
}

}  // namespace fidaleon::app
