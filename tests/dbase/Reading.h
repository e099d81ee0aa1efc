#pragma once
// A table in memory, and what reading it gives: the rows as CSV, the doubts, or the refusal.

#include <cstring>
#include <sstream>

#include "dbase/Csv.h"

namespace fidaleon::dbase {

class TextBytes : public Bytes {
 public:
  explicit TextBytes(std::string text) : text_(std::move(text)) {}
  std::uint64_t size() const override { return text_.size(); }
  void read(std::uint64_t offset, std::span<char> room) const override {
    std::memcpy(room.data(), text_.data() + offset, room.size());
  }

 private:
  std::string text_;
};

struct Reading {
  std::string csv, doubts, refusal;
  std::int64_t deleted = 0;
};

template <class Open>
Reading read(const Open& open) {
  Reading result;
  std::ostringstream csv;
  try {
    Table table = open([&](const Doubt& doubt) { result.doubts += doubt.sentence() + "\n"; });
    writeCsv(table, csv);
    result.deleted = table.deleted();
  } catch (const Error& error) {
    result.refusal = error.what();
  }
  result.csv = csv.str();
  return result;
}

inline Table::Files filesOf(const std::string& dbf, const std::string& memos, Memos::Kind kind,
                            const std::string& beside = {}) {
  Table::Files files{std::make_unique<TextBytes>(dbf), nullptr, kind, beside};
  if (!memos.empty()) files.memos = std::make_unique<TextBytes>(memos);
  return files;
}

inline Reading readBytes(const std::string& dbf, const std::string& memos, Memos::Kind kind,
                         const std::string& beside = {}, const std::string& chosen = {}) {
  return read([&](const Table::Told& told) {
    return Table(filesOf(dbf, memos, kind, beside), chosen, told);
  });
}

}  // namespace fidaleon::dbase
