#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/contract/Entorno.h"
#include "drafts/Draft.h"
#include "drafts/DraftFolder.h"
#include "forms/Form.h"
#include "forms/PassedOn.h"

namespace fidaleon::app {

/// A user interface in front of another that knows which forms are open and keeps what is being
/// typed in them as a draft. It offers a draft that an ended program has left when its form is
/// opened again. A draft goes when its form has stored or closed; one that cannot be put back is
/// shown as a text.
class FormWatch : public forms::PassedOn {
 public:
  /// All must outlive it.
  FormWatch(forms::UserInterface& behind, DraftFolder& folder, const Clock& clock)
      : PassedOn(behind), folder_(folder), clock_(clock) {}

  /// From now on drafts are those of this parish.
  void workOn(const std::filesystem::path& database);

  /// The forms opened while it lives are opened by that task. `watch` may be null.
  class During {
   public:
    During(FormWatch* watch, Task task);
    ~During();
    During(const During&) = delete;
    During& operator=(const During&) = delete;

   private:
    FormWatch* watch_;
  };

  /// Keeps what has changed in the open forms since the last time; to be called every few seconds,
  /// and when the program has to end. True when there is anything to keep.
  bool keep();

  /// Asks about each draft of this parish whether to go on with it; `run` does the task again and
  /// says whether it could be done.
  enum class Resumed {
    Yes,
    Gone,   // there is nothing to go on with
    Later,  // not now: the draft stays and is offered again
  };
  void offerLeft(const std::function<Resumed(const Task&)>& run);

  void showModal(forms::Form& form) override;
  forms::Answer showMessage(const forms::Message& message) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial = {}) override;

 private:
  struct Open {
    const forms::Form* form;
    std::string caption;
    forms::Contents before;  // as it was opened, whatever it has stored since
  };
  class Opened;
  struct Found {
    DraftFolder::Left left;
    Draft draft;
    bool taken = false;
  };
  Draft present() const;
  std::vector<Found> found() const;
  std::optional<Found> foundFor(const forms::Form& form) const;
  forms::Answer ask(const Draft& draft);
  void offer(forms::Form& form);
  void offerWaiting(forms::Form& form);
  void resume(forms::Form& form, Found found);
  bool isStale(const forms::Form& form, const Draft::Level& level) const;
  void fill(forms::Form& form, const Draft::Level& level);
  bool write(const std::function<void()>& writing);
  void showLeft(const char* why, const Found& found);
  void showRest(const char* why, std::vector<Draft::Level> levels);

  DraftFolder& folder_;
  const Clock& clock_;
  std::string parish_;
  Task task_;
  std::vector<Open> open_;
  // As the draft on the disk has them; nothing when that has to be written anew.
  std::optional<std::vector<Draft::Level>> kept_{std::in_place};
  std::vector<Draft::Level> waiting_;  // put back when their forms are opened over this one
  std::optional<Found> agreed_;        // the user wants it back
  bool filling_ = false;
  bool ending_ = false;
  bool failed_ = false;
};

}  // namespace fidaleon::app
