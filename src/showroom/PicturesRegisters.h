#pragma once

#include "core/facade/Documentos.h"
#include "parish/Desk.h"
#include "showroom/PictureAlbum.h"

namespace fidaleon::app {

/// The registers of one sample parish: every register that has an entry dialog, every document of
/// the catalogue.
class RegisterPictures {
 public:
  /// `edition` tells the pictures of its documents apart.
  RegisterPictures(PictureAlbum& album, Photographer& user, Desk& desk, std::string edition)
      : album_(album), user_(user), desk_(desk), edition_(std::move(edition)) {}

  /// Each mode, each tab.
  void entries();
  /// Those of the edition.
  void documents();
  /// Books, requests, duplicates, notices and look-ups, which are the same in all editions.
  void others();

 private:
  void entriesOf(const Sacramento& sacrament);
  void newBooks();
  void bookOf(const Sacramento& sacrament);
  void moveRequestsOf(const Sacramento& sacrament);
  void lookUpOf(const Sacramento& sacrament);
  void detailsOf(const Sacramento& sacrament);
  void notices();
  void ofDossiers();
  void acceptAsked(forms::FormDriver& dialog);
  std::string documentName(const Documento& document) const;
  std::int32_t sampleOf(const Documento& document);
  std::function<void(forms::FormDriver&)> poseFor(const Documento& document);

  std::int32_t one(const std::string& sql);
  std::int32_t openBook(const Sacramento& sacrament);
  std::int32_t newest(const Sacramento& sacrament);
  std::int32_t request(const Sacramento& sacrament);

  cNucleo& nucleo() { return desk_.nucleo(); }
  store::Connection& parish() { return desk_.parish(); }
  const FDAPI::cConfig& config() { return desk_.config(); }

  PictureAlbum& album_;
  Photographer& user_;
  Desk& desk_;
  std::string edition_;
};

}  // namespace fidaleon::app
