#pragma once

#include <QTextBrowser>

#include "window/help/Manual.h"

namespace fidaleon::app {

/// A chapter of the manual. Follows links within the manual and no others.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(const Manual& manual, QWidget* parent = nullptr);

  void show(const Place& place);
  /// What is in sight: the last heading that has been passed.
  Place place() const;
  /// Underlays these words where they stand, without regard to case and accents.
  void mark(const QString& words);

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  QVariant loadResource(int type, const QUrl& url) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QTextBlock blockOf(const std::string& heading) const;
  void jumpTo(const QString& heading);
  void dress();
  void fitPictures();

  const Manual& manual_;
};

/// The same text letter by letter without case and accents.
QString folded(const QString& text);

}  // namespace fidaleon::app
