#include "paper/CheckedFile.h"

namespace fidaleon::paper {
namespace {

constexpr qsizetype kPiece = 1 << 20;

}  // namespace

bool CheckedFile::start() {
  return file_.open(QIODevice::WriteOnly) && open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 CheckedFile::writeData(const char* data, qint64 size) {
  waiting_.append(data, size);
  if (waiting_.size() >= kPiece) flush();
  return size;
}

void CheckedFile::flush() {
  if (!refused_) refused_ = file_.write(waiting_) != waiting_.size() || !file_.flush();
  waiting_.clear();
}

bool CheckedFile::commit() {
  flush();
  return !refused_ && file_.commit();
}

}  // namespace fidaleon::paper
