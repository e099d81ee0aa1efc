#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "store/Progress.h"

class QWidget;

namespace fidaleon::app {

enum class MayCancel { Yes, No };

/// Does the work on a thread of its own and returns when it has ended; what it throws is thrown on.
/// Nothing else can be done meanwhile, but the window lives, and tells how far the work is once it
/// takes a while. The work may touch nothing that this thread uses: no connection, no widget.
/// What is under way can be told in other words meanwhile: `now` is asked on this thread.
void runBeside(QWidget* over, const QString& what, MayCancel mayCancel,
               const std::function<void(const store::Progress&)>& work,
               const std::function<QString()>& now = {});

/// The same for work that cannot be asked to stop, such as waiting for a server: to whoever no
/// longer wants to wait store::Error(Cancelled) is thrown, and the work comes to its end by itself.
/// It must own all that it uses.
void runForgettable(QWidget* over, const QString& what, std::function<void()> work);
template <class Work>
auto askForgettable(QWidget* over, const QString& what, Work work) {
  const auto answer = std::make_shared<std::optional<decltype(work())>>();
  runForgettable(over, what, [answer, work] { *answer = work(); });
  return std::move(**answer);
}
/// Waits for what nobody else waits for any more. For the end of the program.
void awaitForgotten();

}  // namespace fidaleon::app
