#include "search/Indexer.h"

#include <algorithm>

#include "search/Words.h"

namespace fidaleon::search {
namespace {

constexpr std::int64_t NEW_AT_ONCE = 16384;  // keys; others may write only between two pieces
constexpr std::int64_t COMPARED_AT_ONCE = 4096;
constexpr std::size_t CHANGED_AT_ONCE = 200;
constexpr std::size_t MOST_TEXTS = 200000;

}  // namespace

Indexer::Indexer(store::Connection& parish, IndexFile& index) : parish_(parish), index_(index) {}

std::vector<WordId> Indexer::wordsOf(IndexFile::Writing& writing, const std::string& text) {
  if (known_.size() > MOST_TEXTS) known_.clear();
  const auto [at, isNew] = known_.try_emplace(text);
  if (!isNew) return at->second;
  for (const std::string& word : search::wordsOf(text)) {
    WordId id = words_.find(word);
    if (id == 0) {
      id = writing.add(word);
      index_.learn(words_);
    }
    at->second.push_back(id);
  }
  return at->second;
}

bool Indexer::takeNew() {
  return std::any_of(sources().begin(), sources().end(),
                     [this](const Source& source) { return takeNew(source); });
}

bool Indexer::takeNew(const Source& source) {
  if (index_.reached(source.in) >= highestKey(parish_, source)) return false;
  IndexFile::Writing writing(index_);
  const std::int64_t after = index_.reached(source.in);
  const std::int64_t upTo = std::min(after + NEW_AT_ONCE, highestKey(parish_, source));
  if (upTo <= after) return true;  // another desk has taken them in
  std::vector<Document> documents;
  const WordsOf words = [&](const std::string& text) { return wordsOf(writing, text); };
  readRange(parish_, source, after, upTo,
            [&](Entry& entry) { documents.push_back(documentOf(entry, words)); });
  writing.put(documents);
  writing.setReached(source.in, upTo);
  writing.commit();
  return true;
}

bool Indexer::compare() {
  const Source& source = sources()[comparing_];
  const std::int64_t upTo = std::min(compared_ + COMPARED_AT_ONCE, index_.reached(source.in));
  std::vector<std::int32_t> changed;
  const auto known = index_.known(source.in, compared_, upTo);
  auto at = known.begin();
  const auto passUntil = [&](std::int64_t key) {
    for (; at != known.end() && at->key < key; ++at) changed.push_back(at->key);
  };
  readRange(parish_, source, compared_, upTo, [&](const Entry& entry) {
    passUntil(entry.key);
    const bool there = at != known.end() && at->key == entry.key;
    if (!there || at->digest != entry.digest) changed.push_back(entry.key);
    if (there) ++at;
  });
  passUntil(upTo + 1);
  refresh(source.in, changed);
  compared_ = upTo;
  if (upTo < index_.reached(source.in)) return true;
  compared_ = 0;
  comparing_ = (comparing_ + 1) % sources().size();
  return comparing_ != 0;
}

void Indexer::refresh(Register in, const std::vector<std::int32_t>& keys) {
  for (std::size_t from = 0; from < keys.size(); from += CHANGED_AT_ONCE) {
    const std::size_t to = std::min(from + CHANGED_AT_ONCE, keys.size());
    std::vector<std::int32_t> gone(keys.begin() + static_cast<std::ptrdiff_t>(from),
                                   keys.begin() + static_cast<std::ptrdiff_t>(to));
    IndexFile::Writing writing(index_);
    std::vector<Document> documents;
    const WordsOf words = [&](const std::string& text) { return wordsOf(writing, text); };
    readKeys(parish_, sourceOf(in), gone, Extent::Searched, [&](Entry& entry) {
      documents.push_back(documentOf(entry, words));
      std::erase(gone, entry.key);
    });
    writing.put(documents);
    writing.remove(in, gone);
    writing.commit();
  }
}

int Indexer::progress() {
  std::int64_t done = 0, all = 0;
  for (const Source& source : sources()) {
    const std::int64_t highest = highestKey(parish_, source);
    all += highest;
    done += std::min(index_.reached(source.in), highest);
  }
  return all == 0 ? 1000 : static_cast<int>(done * 1000 / all);
}

}  // namespace fidaleon::search
