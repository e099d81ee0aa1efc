#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

struct Rejilla;

/// Fills the library's lists and sets up its grids. Cheap to make; keeps nothing between calls.
class cIListas {
 public:
  explicit cIListas(Contexto& contexto) : contexto_(contexto) {}

  void fillSexo(forms::ListControl& lista);
  /// Formats that a book may have: for NuevoLibro those of a new book (intNuevo 1) or format 1
  /// alone (intNuevo 0), for any other origin all.
  void fillFormatoLibro(forms::ListControl& lista, FDAPI::cCOrigen bytOrigen,
                        FDAPI::Conexion& conBaseDatos, int intNuevo);
  /// `strTipo` "Nuevo", or any other text for old books.
  void fillTipoNombre(forms::ListControl& lista, FDAPI::Conexion& conBaseDatos,
                      const std::string& strTipo);
  void SelText(forms::TextBox& campo);

  // Each sets columns and headers, and keeps a default width in the settings where there is none.
  // What goes wrong with the widths is told, and the grid keeps its own.
  void ConfigGridPropiedadesLibro(forms::Grid& rejilla);
  void ConfigGridPropiedadesLibroMatrimonio(forms::Grid& rejilla);
  void ConfigGridBuscaPadres(forms::Grid& rejilla);
  void ConfigGridBuscaPadresConfirmacion(forms::Grid& rejilla);
  void ConfigGridBuscaPadresMatrimonio(forms::Grid& rejilla);
  void ConfigGridBuscaPadresDefuncion(forms::Grid& rejilla);
  /// `bandeja` is the tray's node name; anything but the inbox shows to whom a message went.
  void ConfigGridMensajes(forms::Grid& rejilla, const std::string& bandeja);

  /// The same for a grid that a dialog describes itself; `procedimiento` and `objeto`, the dialog,
  /// are what an error is reported under.
  void ConfigGrid(forms::Grid& rejilla, const Rejilla& descripcion, const char* procedimiento,
                  const char* objeto = "cIListas");
  /// Keeps the widths as the user has left them.
  void SaveGrid(const forms::Grid& rejilla, const Rejilla& descripcion);

  /// Fills the province lists of a form anew (those named Provincia), each keeping its choice.
  void TodoProvincias(FDAPI::Conexion& conBaseDatos, forms::Form& formulario);

  /// First free name of the type in the institution's books of one kind (byte of Sacramento).
  /// Empty for free names (type 4), and with `blnError` set when there is none left or the store
  /// failed; the user has been told.
  std::string ObtenerNombreLibro(FDAPI::Conexion& conBaseDatos, std::int64_t lngTipoNombre,
                                 std::int64_t lngInstitucion, std::uint8_t bytLibro,
                                 bool& blnError);

  /// The settings section of a grid's widths, for SaveGrid of the support class too.
  std::string ruta(const char* camino) const;
  static constexpr const char* RUTA_PROPIEDADES_LIBRO =
      "Grids\\Propiedades Libros\\PropiedadesLibro";
  static constexpr const char* RUTA_PROPIEDADES_LIBRO_MATRIMONIO =
      "Grids\\Propiedades Libros\\PropiedadesLibroMatrimonio";
  static constexpr const char* RUTA_BUSCA_PADRES = "Grids\\BuscaPadres\\BuscaPadres";
  static constexpr const char* RUTA_BUSCA_CONFIRMACION =
      "Grids\\BuscaPadres\\BuscaBautizadoConfirmacion";
  static constexpr const char* RUTA_BUSCA_MATRIMONIO =
      "Grids\\BuscaPadres\\BuscaBautizadoMatrimonio";
  static constexpr const char* RUTA_BUSCA_DEFUNCION = "Grids\\BuscaPadres\\BuscaBautizadoDefuncion";
  static constexpr const char* RUTA_MENSAJES = "Grids\\Mensajeria\\Mensajes";

 private:
  void aplicarAnchos(forms::Grid& grid, const Rejilla& rejilla);
  std::string primerNombreLibre(FDAPI::Conexion& conexion, std::int64_t tipo,
                                std::int64_t institucion, std::uint8_t libro, bool& sinNombres);

  Contexto& contexto_;
};

}  // namespace fidaleon
