#pragma once
// A parish with a new and an old baptism book, and hands that fill the baptism dialog.

#include <string>

#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/cBaseDatos.h"
#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;
using forms::Answer;
using forms::FormDriver;

inline constexpr const char* EMPTY_FIELDS =
    "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. ¿Desea continuar?";
inline constexpr const char* FURTHER = "¿Desea dar de alta nuevas partidas?";
inline constexpr const char* DIALOG = "frmPartidaBautismo";

/// What acceptance says of something that another desk has deleted.
inline std::string gone(const std::string& what) {
  return "Ya no existe, porque se ha eliminado desde otro puesto:\n\n" + what +
         "\n\nLo que ha escrito sigue aquí. Elija otro y acepte de nuevo.";
}

class BaptismWorld : public ::testing::Test {
 protected:
  explicit BaptismWorld(const char* edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : w(edition) {}

  /// The key of a new book.
  std::int32_t book(const std::string& name, bool isNew, int format,
                    const std::string& created = "19900101", bool closed = false) {
    w.con().Execute(
        "INSERT INTO Libro_Bautismo (codinstitucion, codFormato, codTipoNombre, nombre, "
        "fechacreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) VALUES (" +
        std::to_string(parish) + ", " + std::to_string(format) + ", 4, \"" + name + "\", \"" +
        created + "\", " + (isNew ? "1" : "0") + ", " + (closed ? "1" : "0") + ", 1, 1)");
    return std::stoi(w.value("SELECT MAX(IDLibroBautismo) AS ID FROM Libro_Bautismo"));
  }

  cBautismo record(const std::string& name, std::int32_t libro, int folio,
                   const std::string& number) {
    cBautismo b;
    b.NombreHijo = name;
    b.PrimerApellidoHijo = "García";
    b.SegundoApellidoHijo = "Pérez";
    b.SexoHijo = "Hombre";
    b.NombrePadres = "Juan";
    b.PrimerApellidoPadres = "García";
    b.NombreMadres = "Ana";
    b.PrimerApellidoMadres = "Pérez";
    b.ParroquiaMatrimonio = "San Juan";
    b.FechaBautismo = "19990510";
    b.CodPoblacionPadres = town;
    for (auto text : {&cBautismo::SegundoApellidoPadres, &cBautismo::SegundoApellidoMadres,
                      &cBautismo::FechaNacHijo, &cBautismo::HoraNacHijo,
                      &cBautismo::NotasMarginalesBautismo, &cBautismo::FechaMatrMatrimonio})
      b.*text = "---";
    b.CodLibroBautismo = b.IDLibroBautismo = libro;
    b.FolioBautismo = std::to_string(folio);
    b.NumeroBautismo = number;
    b.Operacion = cCOperacion::ANADIR;
    return b;
  }

  /// Stores the record and gives its key.
  std::int32_t store(cBautismo b) {
    ColeccionBautismo items{std::move(b)};
    bool jump = false;
    EXPECT_TRUE(cBaseDatos(w.contexto).GrabarColeccionBasesDatos(w.con(), items, jump));
    return items.front().IDBautismo;
  }

  /// Shows the dialog as the tree does; `act` works on it.
  void open(cCOperacion operation, forms::ScriptedUser::Act act, std::int32_t id = 0) {
    w.user.expectForm(DIALOG, std::move(act));
    frmPartidaBautismo dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.lngID = id;
    dialog.Operacion = operation;
    const bool request =
        operation == cCOperacion::ANADIRSOLICITUD || operation == cCOperacion::EDITARSOLICITUD;
    if (!request) dialog.Origen = cCOrigen::PRINCIPAL;
    dialog.Show();
  }

  /// Shows the dialog as the list of a book does.
  void openFromList(cCOperacion operation, std::int32_t libro, ColeccionBautismo& items,
                    forms::ScriptedUser::Act act, std::size_t position = 0) {
    w.user.expectForm(DIALOG, std::move(act));
    frmPartidaBautismo dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.Operacion = operation;
    dialog.Origen = cCOrigen::LISTAPARTIDASBAUTISMO;
    dialog.lngInstitucion = parish;
    dialog.lngLibro = libro;
    dialog.colPartidas = &items;
    dialog.lngPosicion = position;
    dialog.Show();
  }

  static void chooseBook(FormDriver& d, const std::string& name) {
    d.choose("cboBautismo(22)", "San Pedro");
    d.choose("cboBautismo(23)", name);
  }
  /// A new entry begins with today in all dates: a birth, and no wedding.
  static void typeDates(FormDriver& d) {
    if (d.text("adtpBautismo(1)") != "22/11/2026") return;
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
    d.type("adtpBautismo(0)", "01/11/2026");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_MATRIMONIO);
    d.type("adtpBautismo(1)", "");
  }
  static void typeChild(FormDriver& d, const std::string& name, const std::string& first = "García",
                        const std::string& second = "Pérez") {
    typeDates(d);
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
    d.type("txtBautismo(7)", name);
    d.type("txtBautismo(8)", first);
    d.type("txtBautismo(9)", second);
  }
  static void typeParents(FormDriver& d) {
    d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
    d.type("txtBautismo(11)", "Juan");
    d.type("txtBautismo(12)", "García");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_MADRE);
    d.type("txtBautismo(16)", "Ana");
    d.type("txtBautismo(17)", "Pérez");
  }
  static void accept(FormDriver& d) { d.click("cmdBautismo(0)"); }
  static void cancel(FormDriver& d) { d.click("cmdBautismo(1)"); }

  std::string column(std::int32_t id, const std::string& column,
                     const std::string& table = "bautismo", const std::string& key = "idbautismo") {
    return w.value("SELECT " + column + " FROM " + table + " WHERE " + key + "=" +
                   std::to_string(id));
  }

  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
};

}  // namespace fidaleon::tests
