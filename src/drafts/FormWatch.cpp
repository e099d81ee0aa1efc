#include "drafts/FormWatch.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "drafts/DraftView.h"
#include "text/Dates.h"
#include "text/SystemErrors.h"

namespace fidaleon::app {
namespace {

constexpr const char* STORED_BY_ANOTHER =
    "No se puede volver a poner lo que se estaba escribiendo: la ficha ha cambiado desde entonces. "
    "Aquí está, para que no se pierda; puede copiarlo.";
constexpr const char* GONE =
    "No se puede volver a poner lo que se estaba escribiendo: la ficha ya no existe. Aquí está, "
    "para que no se pierda; puede copiarlo.";
constexpr const char* NO_WAY_BACK =
    "No se puede volver a la ventana en la que se estaba escribiendo esto. Aquí está, para que no "
    "se pierda; puede copiarlo.";
constexpr const char* PARTLY =
    "Se ha vuelto a poner lo que se estaba escribiendo, menos esto. Puede copiarlo.";
constexpr const char* NOT_OPENED =
    "Esto se estaba escribiendo en ventanas que no se han vuelto a abrir. Puede copiarlo.";

const forms::Field* named(const forms::Contents& contents, const std::string& control) {
  const auto at = std::find_if(contents.fields.begin(), contents.fields.end(),
                               [&](const forms::Field& f) { return f.control == control; });
  return at == contents.fields.end() ? nullptr : &*at;
}

std::string shortDay(const std::string& stored) {
  const auto day = text::parseStored(stored);
  return day ? text::toShort(*day) : stored;
}

/// As much of a text as a question has room for.
std::string beginning(const std::string& text) {
  constexpr int LINES = 10;
  std::size_t end = 0;
  for (int i = 0; i < LINES && end != std::string::npos; ++i) end = text.find('\n', end + 1);
  return end == std::string::npos ? text : text.substr(0, end) + "\n…";
}

}  // namespace

class FormWatch::Opened {
 public:
  Opened(std::vector<Open>& stack, const forms::Form& form) : stack_(stack) {
    stack_.push_back({&form, form.caption(), form.saved()});
  }
  ~Opened() { stack_.pop_back(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

 private:
  std::vector<Open>& stack_;
};

FormWatch::During::During(FormWatch* watch, Task task) : watch_(watch) {
  if (watch_) watch_->task_ = std::move(task);
}

FormWatch::During::~During() {
  if (watch_) watch_->task_ = {};
}

void FormWatch::workOn(const std::filesystem::path& database) {
  std::error_code unknown;
  const auto canonical = std::filesystem::canonical(database, unknown);
  parish_ = (unknown ? database : canonical).string();
}

Draft FormWatch::present() const {
  Draft draft{parish_, task_, text::toStored(clock_.today()), clock_.now(), {}};
  for (const Open& open : open_) {
    const forms::Form& form = *open.form;
    if (form.isDisposable() || (form.isUnloaded() && !form.isAbandoned())) continue;
    forms::Contents now = forms::Contents::of(form);
    // A further entry begins with what the one before it has left: that has to be put back too.
    const forms::Contents& before = now == form.saved() ? form.saved() : open.before;
    draft.levels.push_back({form.name(), open.caption, before, std::move(now)});
  }
  return draft;
}

bool FormWatch::keep() {
  if (filling_ || ending_) return ending_;
  Draft draft = present();
  const bool changed = !waiting_.empty() || std::any_of(draft.levels.begin(), draft.levels.end(),
                                                        [](const auto& l) { return l.changed(); });
  if (!changed) draft.levels.clear();
  draft.levels.insert(draft.levels.end(), waiting_.begin(), waiting_.end());
  if (draft.levels == kept_) return changed;
  if (!write([&] { changed ? folder_.keep(draft.text()) : folder_.drop(); })) return false;
  kept_ = std::move(draft.levels);
  return changed;
}

// Told once: who types on is not to be stopped every few seconds.
bool FormWatch::write(const std::function<void()>& writing) {
  try {
    writing();
    return true;
  } catch (const std::system_error& e) {
    if (!std::exchange(failed_, true))
      behind().msgBox(
          "No se puede guardar el borrador de lo que escribe: " + text::systemReason(e.code()) +
              "\nPuede seguir, pero acepte a menudo: si el programa se cerrara de golpe, "
              "se perdería lo que no haya aceptado.",
          forms::MsgButtons::Ok, forms::MsgIcon::Exclamation, {});
    return false;
  }
}

void FormWatch::showModal(forms::Form& form) {
  {
    const Opened opened(open_, form);
    offer(form);
    if (!form.isUnloaded()) behind().showModal(form);
    if (form.isAbandoned()) ending_ = keep();
  }
  if (!open_.empty()) {
    keep();
    return;
  }
  if (!waiting_.empty() && !ending_) showRest(NOT_OPENED, std::exchange(waiting_, {}));
  keep();
  if (!form.isReadOnly()) ++task_.place;
}

std::vector<FormWatch::Found> FormWatch::found() const {
  std::vector<Found> all;
  for (DraftFolder::Left& left : folder_.left()) {
    std::optional<Draft> draft = Draft::parse(left.content);
    if (draft && draft->parish == parish_ && !draft->levels.empty())
      all.push_back({std::move(left), std::move(*draft)});
  }
  return all;
}

std::optional<FormWatch::Found> FormWatch::foundFor(const forms::Form& form) const {
  for (Found& f : found())
    if (f.draft.task == task_ && f.draft.levels.front().form == form.name()) return std::move(f);
  return std::nullopt;
}

forms::Answer FormWatch::ask(const Draft& draft) {
  return behind().showMessage({"Se ha recuperado lo que se estaba escribiendo el " +
                                   shortDay(draft.day) + " a las " + draft.time + " en «" +
                                   draft.levels.back().caption +
                                   "».\n\n¿Desea seguir con ello? Si contesta que no, se descarta; "
                                   "si cancela, se guarda para más tarde.",
                               forms::MsgButtons::YesNoCancel,
                               forms::MsgIcon::Question,
                               {},
                               beginning(draft.readable()),
                               forms::Answer::Yes});
}

void FormWatch::offerLeft(const std::function<Resumed(const Task&)>& run) {
  for (Found& f : found()) {
    if (f.draft.task.command.empty()) continue;  // its form comes by itself
    const forms::Answer answer = ask(f.draft);
    if (answer == forms::Answer::No) DraftFolder::remove(f.left);
    if (answer != forms::Answer::Yes) continue;
    if (f.draft.task.place != 0) {
      showLeft(NO_WAY_BACK, f);
      continue;
    }
    agreed_ = std::move(f);
    const Task task = agreed_->draft.task;
    const Resumed resumed = run(task);
    const std::optional<Found> unused = std::exchange(agreed_, std::nullopt);
    if (resumed == Resumed::Gone && unused) showLeft(GONE, *unused);
  }
}

void FormWatch::offer(forms::Form& form) {
  if (form.isDisposable()) return;
  if (open_.size() > 1) return offerWaiting(form);
  if (agreed_ && agreed_->draft.levels.front().form == form.name())
    return resume(form, *std::exchange(agreed_, std::nullopt));
  std::optional<Found> f = foundFor(form);
  if (!f) return;
  const forms::Answer answer = ask(f->draft);
  if (answer == forms::Answer::Yes) resume(form, std::move(*f));
  if (answer == forms::Answer::No) DraftFolder::remove(f->left);
}

void FormWatch::offerWaiting(forms::Form& form) {
  const auto at = std::find_if(waiting_.begin(), waiting_.end(), [&](const Draft::Level& l) {
    return l.form == form.name() && l.caption == form.caption();
  });
  if (at == waiting_.end()) return;
  const Draft::Level level = *at;
  waiting_.erase(at);
  isStale(form, level) ? showRest(STORED_BY_ANOTHER, {level}) : fill(form, level);
}

void FormWatch::resume(forms::Form& form, Found found) {
  if (form.isReadOnly()) {
    forms::warn(behind(),
                "Ahora no se puede seguir con lo que se estaba escribiendo: la ficha solo se puede "
                "consultar. Se conserva, y se ofrecerá la próxima vez que la abra.");
    return;
  }
  if (isStale(form, found.draft.levels.front())) return showLeft(STORED_BY_ANOTHER, found);
  if (!write([&] { found.taken = folder_.take(found.left); }) || !found.taken) return;
  waiting_.assign(found.draft.levels.begin() + 1, found.draft.levels.end());
  std::erase_if(waiting_, [](const Draft::Level& level) { return !level.changed(); });
  fill(form, found.draft.levels.front());
  kept_.reset();
  keep();
  if (!waiting_.empty())
    behind().msgBox("También se estaba escribiendo en «" + waiting_.front().caption +
                        "». Vuelva a abrirla desde esta ventana y se pondrá lo que falta.",
                    forms::MsgButtons::Ok, forms::MsgIcon::Information, {});
}

// Fields that somebody has stored since then in another way are not written over with what was
// typed before.
bool FormWatch::isStale(const forms::Form& form, const Draft::Level& level) const {
  if (open_.size() == 1 && task_.record == 0) return false;
  const std::vector<forms::Field> typed = forms::changes(level.before, level.now);
  return std::any_of(typed.begin(), typed.end(), [&](const forms::Field& field) {
    const forms::Field* was = named(level.before, field.control);
    const forms::Field* is = named(form.saved(), field.control);
    return was && is && !(*was == *is) && !(*is == field);
  });
}

void FormWatch::fill(forms::Form& form, const Draft::Level& level) {
  filling_ = true;
  Draft::Level rest{level.form, level.caption, {}, {}};
  rest.now.fields = forms::putBack(form, forms::changes(level.before, level.now));
  if (level.now.own != level.before.own) rest.now.own = form.putBackOwnWork(level.now.own);
  filling_ = false;
  if (rest.changed()) showRest(PARTLY, {rest});
}

void FormWatch::showLeft(const char* why, const Found& found) {
  DraftView view(behind(), why, found.draft.readable());
  view.Show();
  if (view.discarded()) DraftFolder::remove(found.left);
}

void FormWatch::showRest(const char* why, std::vector<Draft::Level> levels) {
  Draft rest = present();
  rest.levels = std::move(levels);
  rest.task.place = Task::NO_WAY;
  DraftView view(behind(), why, rest.readable());
  view.Show();
  if (!view.discarded()) write([&] { folder_.leave(rest.text()); });
}

forms::Answer FormWatch::showMessage(const forms::Message& message) {
  keep();
  return behind().showMessage(message);
}

std::optional<std::string> FormWatch::inputBox(const std::string& prompt, const std::string& title,
                                               const std::string& initial) {
  keep();
  return behind().inputBox(prompt, title, initial);
}

}  // namespace fidaleon::app
