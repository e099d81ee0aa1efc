#include "printing/DocumentBatch.h"

#include <map>
#include <utility>

#include "core/statements/Sentencia.h"
#include "documents/frmInfFecha.h"
#include "parish/Desk.h"
#include "printing/Annulled.h"
#include "printing/DocumentReport.h"
#include "setup/frmEncargado.h"

namespace fidaleon::app {
namespace {

constexpr const char* GONE = "ya no existe: se ha eliminado desde otro puesto.";
constexpr const char* NOT_COMPLETE = "no ha salido nada: le falta alguna de sus fichas.";
constexpr const char* LEFT = "se ha cancelado lo que se preguntaba.";
constexpr const char* UNSIGNED = "no se ha dicho quién firma, o con qué fecha.";

void addLine(std::string& text, const std::string& line) {
  if (!line.empty()) text += (text.empty() ? "" : "\n") + line;
}

}  // namespace

/// Gives the answers that the user has given before, and keeps what needs none.
class DocumentBatch::Answers : public forms::PassedOn {
 public:
  using PassedOn::PassedOn;

  void showModal(forms::Form& form) override {
    if (auto* keeper = dynamic_cast<frmEncargado*>(&form)) return askKeeper(*keeper);
    if (auto* day = dynamic_cast<frmInfFecha*>(&form)) return askDay(*day);
    asked = true;
    PassedOn::showModal(form);
  }
  forms::Answer showMessage(const forms::Message& message) override {
    if (message.buttons != forms::MsgButtons::Ok) return PassedOn::showMessage(message);
    addLine(said, message.text);
    addLine(said, message.below);
    return forms::Answer::Ok;
  }
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial) override {
    asked = true;
    return PassedOn::inputBox(prompt, title, initial);
  }
  void beep() override {}

  std::string said;
  bool asked = false;
  bool givenUp = false;

 private:
  struct Signature {
    std::string keeper;
    std::string day;
  };

  void askKeeper(frmEncargado& form) {
    const auto known = signatures_.find(form.lngInstitucion);
    answer(form, form.cmdBoton[frmEncargado::ACEPTAR], known != signatures_.end(), [&] {
      form.cboEncargado.selectText(known->second.keeper);
      form.adtpFecha.setStored(known->second.day);
    });
    givenUp = givenUp || form.strEncargado.empty();
    if (!givenUp) signatures_[form.lngInstitucion] = {form.strEncargado, form.strFecha};
  }
  void askDay(frmInfFecha& form) {
    const auto known = days_.find(form.caption());
    answer(form, form.cmdBoton[frmInfFecha::ACEPTAR], known != days_.end(),
           [&] { form.adtpFecha.setStored(known->second); });
    givenUp = givenUp || form.blnCancelar;
    if (!givenUp) days_[form.caption()] = form.strFecha;
  }
  template <class Fill>
  void answer(forms::Form& form, forms::Button& accept, bool known, Fill&& fill) {
    if (known) {
      fill();
      form.userClick(accept);
    } else if (!givenUp) {
      PassedOn::showModal(form);
    }
    form.Abandon();
  }

  std::map<std::int32_t, Signature> signatures_;  // by institution
  std::map<std::string, std::string> days_;       // by what the dialog is called
};

DocumentBatch::DocumentBatch(Desk& desk, const Documento& document)
    : desk_(desk),
      document_(document),
      answers_(std::make_unique<Answers>(desk.front().behind())) {}

DocumentBatch::~DocumentBatch() = default;

bool DocumentBatch::givenUp() const {
  return answers_->givenUp;
}

std::optional<paper::Report> DocumentBatch::make(std::int32_t id) {
  told_ = GONE;
  if (desk_.parish()
          .Execute(sentencia(*document_.sacramento,
                             "SELECT {IDPartida} FROM {Partidas} WHERE {IDPartida}=") +
                   std::to_string(id))
          .EOF_())
    return {};
  answers_->said.clear();
  answers_->asked = false;
  std::optional<paper::Report> report;
  try {
    const forms::Relief relief(desk_.front(), *answers_);
    paper::ReportOptions options;
    options.composition = paper::ReportOptions::Composition::AsNeeded;
    report = makeReport(desk_, document_, id, std::move(options));
  } catch (const std::exception& e) {
    addLine(answers_->said, e.what());
  }
  if (answers_->givenUp) report.reset();
  told_ = std::exchange(answers_->said, {});
  if (answers_->givenUp) {
    told_ = UNSIGNED;
  } else if (!report && told_.empty()) {
    told_ = answers_->asked ? LEFT : NOT_COMPLETE;
  } else if (report) {
    if (document_.clase == ClaseDocumento::Partida &&
        isAnnulled(desk_.parish(), *document_.sacramento, id))
      addLine(told_, "está anulada: el documento lo dice.");
    addLine(told_, report->notices().join('\n').toStdString());
  }
  return report;
}

}  // namespace fidaleon::app
