#include "core/lists/cIListas.h"

#include <stdexcept>

#include "core/contract/Sacramento.h"
#include "core/dialogs/Guard.h"
#include "core/lists/cConversor.h"
#include "core/statements/Citas.h"
#include "forms/Form.h"

namespace fidaleon {

using store::Recordset;

namespace {

/// Identities of Libros_TipoNombre that the rules know.
enum TipoNombre : std::int64_t { ANO_Y_CONTADOR = 1, CONTADOR = 2, ROMANO = 3, ABIERTO = 4 };

constexpr int MAXIMO_POR_ANO = 99;
constexpr int MAXIMO = 32000;

std::string candidato(std::int64_t tipo, int n, const std::string& ano) {
  switch (tipo) {
    case ANO_Y_CONTADOR:
      return ano + "/" + (n < 10 ? "0" : "") + std::to_string(n);
    case ROMANO:
      return cConversor().ConvertirRomano(n);
    default:
      return std::to_string(n);
  }
}

bool esListaDeProvincias(const forms::Control& control) {
  const std::string base = control.name().substr(0, control.name().find('('));
  return base.ends_with("Provincia");
}

}  // namespace

void cIListas::fillSexo(forms::ListControl& lista) {
  lista.addItem("Hombre", HOMBRE);
  lista.addItem("Mujer", MUJER);
  lista.setListIndex(-1);
}

void cIListas::fillFormatoLibro(forms::ListControl& lista, FDAPI::cCOrigen bytOrigen,
                                FDAPI::Conexion& conBaseDatos, int intNuevo) {
  const bool menorca = contexto_.edicion(FDAPI::cCAplicacion::APP_FIDALEON_MENORCA);
  const auto ofrecido = [&](std::int64_t formato) {
    if (bytOrigen != FDAPI::cCOrigen::NuevoLibro) return true;
    if (intNuevo == 1) return formato == 3 || (formato == 2 && menorca);
    return formato == 1;
  };
  try {
    Recordset formato = conBaseDatos.Execute("Select * from Libros_Formato");
    lista.clear();
    for (; !formato.EOF_(); formato.MoveNext())
      if (const std::int64_t id = formato.integer("idFormato"); ofrecido(id))
        lista.addItem(formato.text("Descripcion"), id);
  } catch (const std::exception&) {
    contexto_.fidaleon()->vererror("¡ Error al selecionar el formato de los libros !");
  }
}

void cIListas::fillTipoNombre(forms::ListControl& lista, FDAPI::Conexion& conBaseDatos,
                              const std::string& strTipo) {
  const auto ofrecido = [&](std::int64_t tipo) {
    if (strTipo == "Nuevo") return tipo == ANO_Y_CONTADOR || tipo == ABIERTO;
    return tipo != ANO_Y_CONTADOR;
  };
  Recordset tipo = conBaseDatos.Execute("Select * from Libros_TipoNombre");
  lista.clear();
  for (; !tipo.EOF_(); tipo.MoveNext())
    if (const std::int64_t id = tipo.integer("IDTipoNombre"); ofrecido(id))
      lista.addItem(tipo.text("Tipo"), id);
}

void cIListas::SelText(forms::TextBox& campo) {
  campo.selectAll();
}

void cIListas::TodoProvincias(FDAPI::Conexion& conBaseDatos, forms::Form& formulario) {
  guarded(contexto_, "cIListas", "TodoProvincias()", [&] {
    const auto listas = contexto_.entorno.support.create_cIListas();
    for (forms::Control* control : formulario.controls()) {
      auto* lista = dynamic_cast<forms::ListControl*>(control);
      if (!lista || !esListaDeProvincias(*lista)) continue;
      const auto elegida = static_cast<std::int32_t>(lista->data());
      lista->clear();
      listas->fillProvincias(*lista, elegida, conBaseDatos);
    }
  });
}

std::string cIListas::ObtenerNombreLibro(FDAPI::Conexion& conBaseDatos, std::int64_t lngTipoNombre,
                                         std::int64_t lngInstitucion, std::uint8_t bytLibro,
                                         bool& blnError) {
  blnError = false;
  if (lngTipoNombre == ABIERTO) return {};
  std::string nombre;
  bool sinNombres = false;
  const bool leido = guarded(contexto_, "cIListas", "ObtenerNombreLibro()", [&] {
    nombre = primerNombreLibre(conBaseDatos, lngTipoNombre, lngInstitucion, bytLibro, sinNombres);
  });
  if (sinNombres)
    forms::warn(contexto_.ui(), "¡No se pueden crear más libros para el formato elegido!");
  blnError = sinNombres || !leido;
  return nombre;
}

std::string cIListas::primerNombreLibre(FDAPI::Conexion& conexion, std::int64_t tipo,
                                        std::int64_t institucion, std::uint8_t libro,
                                        bool& sinNombres) {
  const std::string ano = contexto_.hoy().substr(0, 4);
  const int maximo = tipo == ANO_Y_CONTADOR ? MAXIMO_POR_ANO : MAXIMO;
  for (int n = 1; n <= maximo; ++n) {
    const std::string nombre = candidato(tipo, n, ano);
    if (conexion
            .Execute(std::string("SELECT Nombre FROM ") + SACRAMENTOS.at(libro).tablaLibros +
                     " WHERE CodInstitucion = " + std::to_string(institucion) +
                     " AND Nombre = " + entreApostrofos(nombre))
            .EOF_())
      return nombre;
  }
  sinNombres = true;
  return {};
}

}  // namespace fidaleon
