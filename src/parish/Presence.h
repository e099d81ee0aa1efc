#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "locks/MeetingPlace.h"

namespace fidaleon::app {

/// Tells the other workstations, where they meet for their locks, that somebody works on the
/// parish; and tells who else does. Keeps nobody from anything, save where workstations cannot see
/// each other: there the first one is the only one. Ends with the program, however that ends.
class Presence {
 public:
  /// `since` is "dd/mm/yyyy a las HH:mm". Throws store::Error where a server cannot be entered,
  /// locks::Unusable where locks do not work, while somebody lets nobody in, and
  /// locks::UnseenOther.
  Presence(const std::filesystem::path& parishDirectory, const std::string& user,
           const std::string& since);

  /// A session at the same meeting place, for locks.
  std::unique_ptr<locks::MeetingPlace> session() const { return meeting_->another(); }
  /// What goes with all that the program stores; null where nothing has to.
  store::Fence* fence() { return meeting_->fence(); }
  /// False where only one workstation may work, since they do not see each other.
  bool seesOthers() const { return meeting_->reach() == locks::Reach::Everywhere; }
  /// Tries again to tell who is here when that could not be written, for a full disk. The others
  /// know meanwhile that somebody is here.
  void tellAgain() noexcept;
  /// Everybody else who works on the parish, each once. Throws locks::Unusable.
  std::vector<locks::Holder> others() const;
  /// Does the work if nobody else is there, and lets nobody in meanwhile; who waits too long is
  /// told what goes on, "está ordenando los libros". The answer is who is there: the work has been
  /// done when it is empty. Throws locks::Unusable, and what the work throws.
  std::vector<locks::Holder> alone(const std::string& doing,
                                   const std::function<void()>& work) const;

 private:
  std::vector<locks::Holder> others(const locks::MeetingPlace::Guard& guard) const;

  locks::Holder self_;
  std::unique_ptr<locks::MeetingPlace> meeting_;
  bool told_ = false;
};

/// Takes away what programs have left in the parish that cannot be seen from here. Only for a user
/// who knows that they have ended. Throws locks::Unusable.
void dismissUnseen(const std::filesystem::path& parishDirectory);

/// "Ana, en el equipo SACRISTIA, desde las 10:30 del 22/11/2026"
std::string spoken(const locks::Holder& holder);

}  // namespace fidaleon::app
