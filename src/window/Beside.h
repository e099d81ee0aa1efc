#pragma once

#include <QString>
#include <functional>

#include "store/Progress.h"

class QWidget;

namespace fidaleon::app {

enum class MayCancel { Yes, No };

/// Does the work on a thread of its own and returns when it has ended; what it throws is thrown on.
/// Nothing else can be done meanwhile, but the window lives, and tells how far the work is once it
/// takes a while. The work may touch nothing that this thread uses: no connection, no widget.
void runBeside(QWidget* over, const QString& what, MayCancel mayCancel,
               const std::function<void(const store::Progress&)>& work);

}  // namespace fidaleon::app
