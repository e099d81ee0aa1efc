#pragma once

#include <QSaveFile>

namespace fidaleon::paper {

/// Takes what the toolkit writes and remembers whether the disk took it: the writer of PDF does not
/// look at what the disk answers. Nothing stands at the file's place until commit() says yes.
class CheckedFile : public QIODevice {
 public:
  explicit CheckedFile(const QString& path) : file_(path) {}

  bool start();
  /// False when any byte was refused; the file that stood there before is then unharmed.
  bool commit();
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override;

 private:
  void flush();

  QSaveFile file_;
  QByteArray waiting_;
  bool refused_ = false;
};

}  // namespace fidaleon::paper
