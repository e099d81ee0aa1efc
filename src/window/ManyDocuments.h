#pragma once

#include <QDialog>
#include <cstdint>
#include <vector>

#include "catalogue/NodeView.h"
#include "core/facade/Documentos.h"

class QComboBox;
class QRadioButton;

namespace fidaleon::app {

class Desk;

/// Which document is made of each of the chosen rows, and where they go.
class ManyDocumentsDialog : public QDialog {
  Q_OBJECT

 public:
  enum class To { OneFile, FileEach, Paper };

  ManyDocumentsDialog(std::vector<const Documento*> documents, const QString& title, To proposed,
                      QWidget* parent);
  const Documento& document() const;
  To to() const;

 private:
  std::vector<const Documento*> documents_;
  QComboBox* which_ = nullptr;
  std::vector<QRadioButton*> ways_;
};

/// Asks that and makes them, one after the other: with progress, and with a report at the end of
/// those of which there could be none. The answer is what to tell in passing, where there is no
/// report.
QString makeDocuments(Desk& desk, const NodeView& node, const std::vector<std::int32_t>& keys,
                      QWidget* over);

}  // namespace fidaleon::app
