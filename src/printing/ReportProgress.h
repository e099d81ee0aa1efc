#pragma once

#include "core/contract/FDAPI.h"
#include "forms/UserInterface.h"

namespace fidaleon::app {

/// The progress display of a report, for as long as the object lives. A report in several stretches
/// begins anew for each.
class ReportProgress : public FDAPI::cProgreso {
 public:
  explicit ReportProgress(forms::UserInterface& ui) : ui_(ui) {}
  ~ReportProgress() override;
  ReportProgress(const ReportProgress&) = delete;
  ReportProgress& operator=(const ReportProgress&) = delete;

  void Cargar(std::int64_t cuenta, const std::string& mensaje, int modo, int minimo) override;
  void setValue(std::int64_t valor) override;
  /// There was something to write.
  bool began() const { return began_; }

 private:
  void close();

  forms::UserInterface& ui_;
  bool open_ = false;
  bool began_ = false;
};

}  // namespace fidaleon::app
