#include "qt/SampleForm.h"

namespace fidaleon::qt {

using namespace forms;

SampleForm::SampleForm(UserInterface& ui) : Form(ui, "frmMuestra") {
  setCaption("Nueva partida de bautismo");
  for (const char* caption :
       {"Nombre del padre", "Primer apellido del padre", "Segundo apellido del padre", "Natural de",
        "Nombre de la madre", "Primer apellido de la madre", "Segundo apellido de la madre",
        "Natural de"}) {
    const auto i = parentFields.size();
    parentFields.push_back(
        std::make_unique<TextBox>(*this, "txtPadres(" + std::to_string(i) + ")", caption));
  }
  folio.setDigitsOnly(true);
  folio.setMaxLength(5);
  folio.setWidthChars(6);
  number.setMaxLength(5);
  number.setWidthChars(6);
  name.setMaxLength(30);
  sex.setWidthChars(10);
  notes.setLines(6);
  several.setMultiSelect(true);
  annulled.setEmphasised(true);
  accept.setDefault(true);
  cancel.setCancel(true);
  place();
  listen();
}

void SampleForm::place() {
  Nodes parentItems;
  for (auto& field : parentFields) parentItems.push_back(item(*field));
  setLayout(column(
      {fields(2, {item(institution, {&addInstitution}, 2), item(folio), item(number)}),
       tabs(strip, {page({fields(2, {item(name, 2), item(surname1), item(surname2), item(sex),
                                     item(born), item(hour), item(province), item(town),
                                     item(lockedList), item(locked, 2), item(disabled, 2),
                                     item(legitimate), item(annulled)}),
                          group(kind, {row({item(newBook), item(oldBook)})})}),
                    page({group(parents, {fields(2, std::move(parentItems))}),
                          row({item(witnesses), item(several)})}),
                    page({fields(1, {item(notes)}), item(entries)}), page({item(progress)})}),
       buttons({&accept, &cancel})}));
}

void SampleForm::listen() {
  for (Control* control : controls()) {
    control->onLostFocus = [this, control](Control* next) {
      log.push_back("left " + control->name());
      const bool cancels = next == &cancel;
      if (refuses[control->name()] && !cancels) setFocus(*control);
    };
    const auto click = [this, control] { log.push_back("click " + control->name()); };
    if (auto* list = dynamic_cast<ListControl*>(control)) {
      list->onClick = click;
      list->onDblClick = [this, control] { log.push_back("double " + control->name()); };
    }
    if (auto* check = dynamic_cast<CheckBox*>(control)) check->onClick = click;
    if (auto* option = dynamic_cast<OptionButton*>(control)) option->onClick = click;
    if (auto* button = dynamic_cast<Button*>(control)) button->onClick = click;
  }
  entries.onDblClick = [this] { log.push_back("double " + std::to_string(entries.row())); };
  strip.onMouseDown = [this](int next) { return next != forbiddenTab; };
  strip.onClick = [this](int) { log.push_back("tab " + std::to_string(strip.tab())); };
  cancel.onClick = [this] { Unload(); };
}

void SampleForm::Form_Load() {
  for (const char* text : {"San Andrés Apóstol, Villarrín", "Santa María la Mayor", "El Salvador"})
    institution.addItem(text, institution.listCount() + 1);
  institution.setListIndex(0);
  for (const char* text : {"Hombre", "Mujer"}) sex.addItem(text, sex.listCount());
  for (const char* text : {"Albacete", "Alicante", "Álava", "Ávila", "Badajoz", "Zamora"})
    province.addItem(text, province.listCount() + 1);
  lockedList.addItem("Zamora");
  lockedList.setListIndex(0);
  lockedList.setLocked(true);
  locked.setText("D. José Núñez Calderón, cura párroco");
  locked.setLocked(true);
  disabled.setText("Juzgado n.º 2, tomo 114, folio 36");
  disabled.setEnabled(false);
  newBook.setValue(true);
  for (const char* text : {"Ana Prieto", "Luis Gato", "Rosa Vara"}) {
    witnesses.addItem(text);
    several.addItem(text);
  }
  entries.setColumns(4);
  const char* const headers[] = {"Folio", "Número", "Nombre", "Clave"};
  const int widths[] = {900, 1000, 4000, 0};
  for (int i = 0; i < 4; ++i) {
    entries.setHeader(i, headers[i]);
    entries.setColumnWidth(i, widths[i]);
  }
  for (int i = 1; i <= 30; ++i)
    entries.addRow({std::to_string(1 + i / 4), std::to_string(i), "Niño " + std::to_string(i), "x"},
                   i);
  progress.Cargar(100, "Leyendo las partidas del libro...");
  progress.setValue(40);
  log.clear();
}

}  // namespace fidaleon::qt
