#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "files/Identity.h"
#include "search/DocumentSet.h"
#include "search/Documents.h"
#include "search/Vocabulary.h"

namespace fidaleon::search {

/// The index of a parish: a file of its own beside the parish, for the same accounts, which holds
/// what documents are found by and nothing that cannot be read from the parish again. Several
/// desks may use it at once, and each may keep it up; one thread. Everything throws store::Error;
/// NotADatabase says that it is damaged and may be removed.
class IndexFile {
 public:
  /// The index of the parish that lies in that folder.
  static std::filesystem::path fileIn(const std::filesystem::path& folder);

  /// Makes it when there is none.
  explicit IndexFile(const std::filesystem::path& file);
  ~IndexFile();
  IndexFile(const IndexFile&) = delete;
  IndexFile& operator=(const IndexFile&) = delete;

  /// Takes the file away, unless another one has taken its place since.
  void remove() noexcept;
  /// False when another one has taken its place, or none.
  bool isInPlace() const;

  /// Adds the words that came to be since.
  void learn(Vocabulary& words);
  /// Another number than before when another connection has written.
  std::int64_t version();
  /// Above all numbers of documents.
  std::int64_t end();
  std::int64_t count();
  /// Adds the documents of a mark.
  void add(DocumentSet& set, MarkId mark);
  Document document(std::int64_t number);

  struct Known {
    std::int32_t key;
    std::uint64_t digest;
  };
  /// What is known of the entries of the keys above one and up to another, in the order of keys.
  std::vector<Known> known(Register in, std::int64_t after, std::int64_t upTo);
  /// All entries of the register up to this key have been looked at.
  std::int64_t reached(Register in);

  /// For the length of a block all that is read stands as it stood together; whoever writes waits.
  class Reading {
   public:
    explicit Reading(IndexFile& file);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

   private:
    IndexFile& file_;
  };

  /// The right to write, which one desk has at a time, for the length of a block; what was not
  /// committed is undone. Whoever writes what is stored reads it only after it has this.
  class Writing {
   public:
    explicit Writing(IndexFile& file);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

    void setReached(Register in, std::int64_t key);
    WordId add(const std::string& word);
    /// Puts the documents in the place of those of the same entries.
    void put(const std::vector<Document>& documents);
    void remove(Register in, const std::vector<std::int32_t>& keys);
    void commit();

   private:
    struct Change {
      MarkId mark;
      std::int64_t document;
      bool operator<(const Change& other) const {
        return mark != other.mark ? mark < other.mark : document < other.document;
      }
    };
    std::int64_t forget(Register in, std::int32_t key);
    void apply();

    IndexFile& file_;
    std::vector<Change> gone_;
    std::vector<Change> come_;
    bool committed_ = false;
  };

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
  std::filesystem::path file_;
  std::optional<files::Identity> identity_;
};

}  // namespace fidaleon::search
