// rooms: qt registers support store
// How many keys an entry takes beside the letters of its data, typed with the keyboard alone in the
// window of its dialog: by Tab, as where Enter accepts, and as where Enter goes on. Then how long
// what is offered while one types takes among many entries, and how long its reading holds a key
// up.

#include <QApplication>
#include <QKeyEvent>
#include <string>
#include <utility>
#include <vector>

#include "benches/Bench.h"
#include "benches/Registers.h"
#include "benches/World.h"
#include "core/contract/Teclado.h"
#include "core/lists/Memoria.h"
#include "qt/FormDialog.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/common/FormaPartida.h"
#include "registers/confirmation/frmPartidaConfirmacion.h"

namespace {

using namespace fidaleon;

/// What stands in a field, in the order of the form. A place is "town|province".
using Data = std::vector<std::pair<std::string, std::string>>;

/// A pair of hands on the window of a form, which count what they press.
class Hands {
 public:
  Hands(forms::Form& form, bool enter, int& keys) : form_(form), enter_(enter), keys_(keys) {
    window_.show();
    window_.activateWindow();
    while (!window_.isActiveWindow()) QCoreApplication::processEvents();
    form_.begin();
  }
  void press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    ++keys_;
    send(key, with, {});
  }
  void write(const std::string& text) {
    for (const QChar letter : QString::fromStdString(text)) send(Qt::Key_unknown, {}, letter);
  }
  /// Page by page, then field by field. False when the text has come there on the way.
  bool goTo(const std::string& name, const std::string& text) {
    const forms::Control& to = *form_.find(name);
    const auto* box = dynamic_cast<const forms::TextBox*>(&to);
    for (int tries = 0; form_.activeControl() != &to && tries < 80; ++tries) {
      if (box && box->text() == text) return false;
      if (!to.reachable() && !enter_)
        press(Qt::Key_PageDown, Qt::ControlModifier);
      else
        press(enter_ ? Qt::Key_Return : Qt::Key_Tab);
    }
    if (form_.activeControl() != &to) std::printf("no se llega a %s\n", name.c_str());
    return true;
  }
  void fill(const Data& data) {
    for (const auto& [name, text] : data) {
      const auto bar = text.find('|');
      if (!enter_ && bar != std::string::npos) {
        const auto open = name.find('(');
        goTo(name.substr(0, open + 1) + std::to_string(std::stoi(name.substr(open + 1)) - 1) + ")",
             {});
        write(text.substr(bar + 1));
      }
      if (goTo(name, text)) write(text.substr(0, bar));
    }
  }
  void accept() { press(Qt::Key_Return, enter_ ? Qt::ControlModifier : Qt::NoModifier); }

 private:
  void send(int key, Qt::KeyboardModifiers with, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, with, text);
      QCoreApplication::sendEvent(window_.focusWidget(), &event);
    }
    QCoreApplication::processEvents();
  }

  forms::Form& form_;
  qt::FormDialog window_{form_};
  bool enter_;
  int& keys_;
};

struct Parish : bench::World {
  explicit Parish(bool goesOn) : enter(goesOn) {
    ponerIntroPasaDeCampo(entorno.settings, goesOn);
    connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
    for (const char* town : {"Buitrago del Lozoya", "Madrid"})
      connection->Execute(std::string("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"") +
                          town + "\", 28)");
    for (const char* word : {"Bautismo", "Confirmacion"})
      connection->Execute(std::string("INSERT INTO Libro_") + word +
                          " (Nombre, CodInstitucion, CodFormato, Nuevo, Cerrado, FechaCreacion, "
                          "FolioSiguiente, NumeroSiguiente) VALUES (\"L1\", 1, 1, True, False, "
                          "\"20260101\", 1, \"1\")");
    user.answerAnything(forms::Answer::Yes);
  }

  /// Keys of what `work` does in the dialog, with one for each message.
  template <class Dialog>
  int keys(const std::string& name, const std::function<void(Hands&)>& work) {
    int pressed = 0;
    std::size_t before = 0;
    user.expectForm(name, [&](forms::FormDriver& d) {
      before = user.messages().size();
      {
        Hands hands(d.form(), enter, pressed);
        work(hands);
      }
      d.form().Unload();
    });
    Dialog dialog(contexto);
    dialog.conBaseDatos = connection.get();
    dialog.Operacion = FDAPI::cCOperacion::ANADIR;
    dialog.Origen = FDAPI::cCOrigen::PRINCIPAL;
    dialog.Show();
    for (const std::string& problem : user.problems()) std::printf("%s\n", problem.c_str());
    return pressed + static_cast<int>(user.messages().size() - before);
  }

  bool enter;
};

const std::string TOWN = "bui|mad";

Data child(const std::string& name, const std::string& born) {
  return {{"txtBautismo(7)", name},     {"txtBautismo(8)", "Gil"}, {"txtBautismo(9)", "Sanz"},
          {"cboBautismo(20)", "H"},     {"adtpBautismo(0)", born}, {"txtHoraNac", "1030"},
          {"txtBautismo(10)", "Mayor"}, {"cboBautismo(1)", TOWN}};
}

Data parents() {
  return {{"txtBautismo(11)", "Luis"},      {"txtBautismo(12)", "Gil"},
          {"txtBautismo(13)", "Rey"},       {"cboBautismo(3)", TOWN},
          {"txtSC(0)", "Herrero"},          {"txtBautismo(14)", "Juan Gil"},
          {"cboBautismo(5)", TOWN},         {"txtBautismo(15)", "Eva Rey"},
          {"cboBautismo(7)", TOWN},         {"txtBautismo(16)", "Ana"},
          {"txtBautismo(17)", "Sanz"},      {"txtBautismo(18)", "Mas"},
          {"cboBautismo(9)", TOWN},         {"txtSC(1)", "Maestra"},
          {"txtBautismo(19)", "Blas Sanz"}, {"cboBautismo(11)", TOWN},
          {"txtBautismo(20)", "Rosa Mas"},  {"cboBautismo(13)", TOWN},
          {"txtBautismo(21)", "San Pedro"}, {"adtpBautismo(1)", "01022020"},
          {"txtBautismo(38)", "Madrid"},    {"cboBautismo(15)", TOWN},
          {"txtBautismo(22)", "Mayor 3"},   {"cboBautismo(17)", TOWN}};
}

/// The ceremony is as the one before, but for the day and the godparents.
void baptise(Hands& hands, bool likeTheOneBefore) {
  if (likeTheOneBefore) {
    hands.fill({{"adtpBautismo(2)", "22112026"}});
    hands.press(Qt::Key_F4, Qt::ShiftModifier);
  } else {
    hands.fill({{"adtpBautismo(2)", "22112026"},
                {"txtBautismo(30)", "Pedro Ruiz"},
                {"txtBautismo(25)", "Cura"},
                {"txtBautismo(31)", "San Pedro"},
                {"txtBautismo(32)", "Madrid"},
                {"cboBautismo(19)", TOWN}});
  }
  hands.fill({{"txtBautismo(28)", "Raul Pinto"}, {"txtBautismo(29)", "Sara Vela"}});
  hands.accept();
}

struct Counted {
  int full, sibling, confirmation;
};

Counted count(bool enter) {
  Parish parish(enter);
  const auto baptism = [&](const std::function<void(Hands&)>& work) {
    return parish.keys<frmPartidaBautismo>("frmPartidaBautismo", work);
  };
  const auto found = [&] {
    parish.user.expectForm("frmBuscaPadres", [](forms::FormDriver& d) { d.enter(); });
    return 1;
  };
  const auto begin = [&](Hands& hands) {
    if (enter) return;
    hands.press(Qt::Key_S);  // the institution and the book
    hands.press(Qt::Key_Tab);
    hands.press(Qt::Key_Tab);
    hands.press(Qt::Key_L);
  };
  baptism([&](Hands& hands) {
    begin(hands);
    hands.fill(child("Leo", "01102026"));
    hands.fill(parents());
    baptise(hands, false);
  });
  Data other = child("Marcos", "02102026");
  Data others = parents();
  other[1].second = "Toro";
  others[1].second = "Toro";
  Counted keys{};
  keys.full = baptism([&](Hands& hands) {
    begin(hands);
    hands.fill(other);
    hands.fill(others);
    baptise(hands, enter);
  });
  keys.sibling = baptism([&](Hands& hands) {
                   begin(hands);
                   keys.sibling = found();
                   hands.fill(child("Teo", "03102026"));
                   baptise(hands, enter);
                 }) +
                 1;
  parish.keys<frmPartidaConfirmacion>("frmPartidaConfirmacion", [&](Hands& hands) {
    begin(hands);
    const auto person = [&](const std::string& first, const std::string& second) {
      hands.fill({{"txtConfirmacion(0)", "Ana"},
                  {"txtConfirmacion(1)", first},
                  {"txtConfirmacion(2)", second}});
    };
    hands.fill({{"adtpConfirmacion(0)", "22112026"}, {"txtConfirmacion(3)", "San Pedro"}});
    person("Coto", "Cid");
    hands.accept();
    person("Lobo", "Saz");
    const std::size_t before = parish.user.messages().size();
    hands.accept();
    keys.confirmation = 3 + static_cast<int>(parish.user.messages().size() - before);
  });
  return keys;
}

/// What is read beside the typing, and what a key then waits for.
void offersAmong(int entries) {
  bench::World world;
  world.connection->Execute("INSERT INTO Institucion (Nombre) VALUES (\"San Pedro\")");
  bench::FilledRegister(*world.connection, *formaPartida(BAUTISMO), entries, 1000);
  world.connection->engine().run(
      "UPDATE Bautismo SET Ministro = 'Don Pedro ' || (IDBautismo % 40), Padrino = 'Raúl ' || "
      "(IDBautismo % 90000), Parroquia = 'San ' || (IDBautismo % 300)");
  Memoria memory;
  double longest = 0, first = 0;
  const double start = bench::now();
  for (bool more = true; more;) {
    const double before = bench::now();
    more = memory.leer(*world.connection, std::chrono::milliseconds(8));
    longest = std::max(longest, bench::now() - before);
    if (first == 0) first = longest;
  }
  const std::string among = " entre " + std::to_string(entries) + " partidas";
  bench::within("leer lo escrito: lo que espera una tecla" + among, longest, 50);
  std::printf("leer todo lo escrito%s: %.0f ms al lado de las teclas\n", among.c_str(),
              bench::now() - start);
  const auto asked = [&](Voz voz, const char* typed) {
    return bench::milliseconds(5, [&] { memory.vocabulario.proponer(voz, typed); });
  };
  bench::within("proponer un ministro" + among, asked(Voz::Ministro, "pe"), 5);
  bench::within("proponer un padrino" + among, asked(Voz::Padrino, "ra"), 5);
  bench::within(
      "mirar un apellido" + among,
      bench::milliseconds(5, [&] { (void)memory.vocabulario.parecido(Voz::Apellido, "Aabz"); }), 5);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const Counted before = count(false), after = count(true);
  std::printf("teclas de más            con Tab   con Intro\n");
  std::printf("un bautismo entero      %8d %11d\n", before.full, after.full);
  std::printf("un hermano              %8d %11d\n", before.sibling, after.sibling);
  std::printf("cada confirmación       %8d %11d\n", before.confirmation, after.confirmation);
  offersAmong(argc > 1 ? std::atoi(argv[1]) : 100'000);
}
