#pragma once

#include <QImage>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "forms/ScriptedUser.h"
#include "paper/Report.h"

class QWidget;

namespace fidaleon::app {

/// Puts pictures into a directory and counts those that could not be made.
class PictureAlbum {
 public:
  /// Is shown every window under the name of its picture.
  using Look = std::function<void(const std::string& name, QWidget& window)>;

  PictureAlbum(std::filesystem::path directory, std::ostream& out)
      : directory_(std::move(directory)), out_(out) {}
  /// Takes no picture of a window, but shows it to whoever wants to look at it.
  PictureAlbum(Look look, std::ostream& out) : out_(out), look_(std::move(look)) {}

  void add(const std::string& name, const QImage& picture);
  void add(const std::string& name, QWidget& widget);
  /// The first pages.
  void add(const std::string& name, const std::optional<paper::Report>& report, int most = 2);
  /// Every tab of the form, or the form itself when it has none.
  void add(const std::string& name, forms::Form& form);
  void miss(const std::string& name, const std::string& why);
  bool complete() const { return failures_ == 0; }

 private:
  void addTabs(const std::string& name, forms::Form& form, forms::TabStrip* strip);

  std::filesystem::path directory_;
  std::ostream& out_;
  Look look_;
  int failures_ = 0;
};

/// Looks at each form it is shown, and closes it.
class Photographer : public forms::ScriptedUser {
 public:
  Photographer(PictureAlbum& album, std::string prefix);

  /// What is done to the form before its picture is taken. A form that this opens in its turn is
  /// taken too when `next` has been given its name.
  std::function<void(forms::FormDriver&)> pose;
  std::string next;

  /// The form that the operation opens.
  void take(const std::string& name, const std::function<void()>& operation);
  void showModal(forms::Form& form) override;

 private:
  PictureAlbum& album_;
  std::string prefix_;
};

/// A caption as part of a file name: "año 1" is "ano-1".
std::string plainName(const std::string& caption);

}  // namespace fidaleon::app
