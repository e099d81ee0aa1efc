#include "showroom/PictureAlbum.h"

#include <QWidget>
#include <algorithm>
#include <ostream>
#include <utility>

#include "qt/Picture.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr QSize SCREEN(1366, 768);
constexpr int DOCUMENT_DPI = 100;

/// The tabs of the form, or those that stand on a page of others.
forms::TabStrip* tabsOf(const forms::Form& form, const forms::TabStrip* outer = nullptr,
                        int page = 0) {
  forms::TabStrip* strip = nullptr;
  for (forms::Control* control : form.controls())
    if (auto* found = dynamic_cast<forms::TabStrip*>(control);
        found && found->strip() == outer && (!outer || found->page() == page))
      strip = found;
  return strip;
}

}  // namespace

void PictureAlbum::add(const std::string& name, const QImage& picture) {
  if (look_) return;
  const std::filesystem::path file = directory_ / (name + ".png");
  const bool saved =
      !picture.isNull() && picture.save(QString::fromStdString(file.string()), "PNG");
  out_ << (saved ? "" : "FALLO: ") << file.filename().string() << std::endl;
  if (!saved) ++failures_;
}

void PictureAlbum::add(const std::string& name, QWidget& widget) {
  if (look_) return look_(name, widget);
  add(name, widget.grab().toImage());
}

void PictureAlbum::add(const std::string& name, const std::optional<paper::Report>& report,
                       int most) {
  if (!report) return miss(name, "el documento no tiene filas");
  for (int page = 0; page < std::min(most, report->pageCount()); ++page)
    add(page == 0 ? name : name + "-" + std::to_string(page + 1),
        report->pageImage(page, DOCUMENT_DPI));
}

void PictureAlbum::add(const std::string& name, forms::Form& form) {
  if (look_) return qt::showUnseen(form, SCREEN, [&](QWidget& window) { look_(name, window); });
  addTabs(name, form, tabsOf(form));
}

void PictureAlbum::addTabs(const std::string& name, forms::Form& form, forms::TabStrip* strip) {
  if (!strip) return add(name, qt::renderToPicture(form, SCREEN));
  const int front = strip->tab();
  for (int tab = 0; tab < strip->tabCount(); ++tab) {
    if (!strip->tabVisible(tab)) continue;
    strip->setTab(tab);
    addTabs(name + "-" + std::to_string(tab + 1) + "-" + plainName(strip->caption(tab)), form,
            tabsOf(form, strip, tab));
  }
  strip->setTab(front);
}

void PictureAlbum::miss(const std::string& name, const std::string& why) {
  out_ << "FALLO: " << name << ": " << why << std::endl;
  ++failures_;
}

Photographer::Photographer(PictureAlbum& album, std::string prefix)
    : album_(album), prefix_(std::move(prefix)) {
  answerAnything(forms::Answer::Yes);
}

void Photographer::take(const std::string& name, const std::function<void()>& operation) {
  next = name;
  operation();
  pose = {};
  if (const std::string missed = std::exchange(next, {}); !missed.empty())
    album_.miss(prefix_ + missed,
                messages().empty() ? "no se ha abierto el diálogo" : messages().back().text);
}

void Photographer::showModal(forms::Form& form) {
  const std::string name = std::exchange(next, {});
  const auto prepare = std::exchange(pose, {});
  form.focusFirst();
  std::vector<std::string> wrong;
  forms::FormDriver driver(form, wrong);
  if (prepare) prepare(driver);
  for (const std::string& what : wrong) album_.miss(prefix_ + name, what);
  if (!name.empty() && !form.isUnloaded()) album_.add(prefix_ + name, form);
  form.Unload();
}

std::string plainName(const std::string& caption) {
  std::string plain;
  for (const char c : text::searchKey(caption))
    plain += (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ? c : '-';
  return plain;
}

}  // namespace fidaleon::app
