// Opening the baptism dialog in its modes.

#include <stdexcept>

#include "core/lists/cIListas.h"
#include "registers/baptism/TablasBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/cBaseDatos.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;

namespace {

constexpr const char* MENSAJE_CARGA_INCOMPLETA =
    "¡A esta partida le falta alguna de sus fichas (bautizado, padre, madre o matrimonio)! Se "
    "puede consultar, pero no modificar.";
constexpr const char* MENSAJE_QUEDA_A_MEDIAS =
    "La partida ha quedado guardada a medias y no se ha podido retirar. La encontrará en Registro, "
    "«Partidas incompletas».";

bool enBlanco(const std::string& valor) {
  return valor.empty() || valor == "---";
}

}  // namespace

bool frmPartidaBautismo::esSolicitud() const {
  return Operacion == cCOperacion::ANADIRSOLICITUD || Operacion == cCOperacion::EDITARSOLICITUD;
}

bool frmPartidaBautismo::esAlta() const {
  return Operacion == cCOperacion::ANADIR || Operacion == cCOperacion::ANTIGUA ||
         Operacion == cCOperacion::ANADIRSOLICITUD;
}

void frmPartidaBautismo::Form_Load() {
  // Half-loaded fields must never be accepted over what is stored.
  if (!procedimiento("Form_Load", [this] { cargar(); })) return Unload();
  cargando_ = false;
  procedimiento("Form_Load", [this] { avisarNumeroRepetido(); });
}

/// What a failure left in the tables without its child stands in no list.
void frmPartidaBautismo::Form_Unload() {
  if (!esAlta() || desdeLista()) return;
  ColeccionBautismo aMedias{registro_};
  if (!cBaseDatos(contexto_).RetirarAMedias(*conBaseDatos, aMedias))
    forms::warn(ui(), MENSAJE_QUEDA_A_MEDIAS);
}

void frmPartidaBautismo::cargar() {
  const forms::Hourglass reloj(ui());
  cargando_ = true;
  if (!strPortapapeles.empty()) ui().setClipboardText(strPortapapeles);
  listas_->abrir(*conBaseDatos);
  posicion_->abrir(*conBaseDatos, Origen);
  vigilarElecciones();
  cIListas(contexto_).fillSexo(cboBautismo[Sexo]);
  for (ParProvinciaPoblacion& par : pares_) par.abrir(*conBaseDatos);
  cmdBautismo[ANULAR].setVisible(Operacion == cCOperacion::ANTIGUA ||
                                 Operacion == cCOperacion::EDITAR);
  limpiarCampos();
  if (esSolicitud()) prepararSolicitud();
  if (Operacion == cCOperacion::ANADIR || Operacion == cCOperacion::ANTIGUA) prepararAlta();
  if (Operacion == cCOperacion::EDITAR) prepararEdicion();
  refrescarTitulo();
  if (incompleta_)
    setReadOnly({"Solo se puede consultar: faltan datos de esta partida en la base de datos.", {}});
}

void frmPartidaBautismo::vigilarElecciones() {
  elecciones_.emplace(contexto_, *conBaseDatos);
  elecciones_->vigilar(
      {&cboBautismo[Institucion], "Institucion", "IDInstitucion", "la institución", [this] {
         listas_->cargarInstituciones(0);
         cboBautismo[Libro].clear();
         vaciarPosicion();
       }});
  elecciones_->vigilar(
      {&cboBautismo[Libro], BAUTISMO.tablaLibros, BAUTISMO.claveLibro, "el libro", [this] {
         llenarLibros();
         vaciarPosicion();
       }});
  for (ParProvinciaPoblacion& par : pares_)
    elecciones_->vigilar({&par.poblacion(), "Municipio", "IDMunicipio", "la población",
                          [&par] { par.olvidarPoblacion(); }});
}

void frmPartidaBautismo::limpiarCampos() {
  registro_ = {};
  apellidosBuscados_.clear();
  for (const auto& e : textos_) e.campo->setText("");
  for (const auto& e : municipios_) e.campo->poner(0);
  cboBautismo[Sexo].setListIndex(-1);
  txtHoraNac.setText("");
  fechasRevisadas_.empezar(Operacion == cCOperacion::ANADIR);
  anulada_ = false;
  mostrarAnulada();
}

void frmPartidaBautismo::prepararAlta() {
  listas_->cargarInstituciones(lngInstitucion);
  abrirPosicion(Operacion == cCOperacion::ANTIGUA);
  if (lngInstitucion != 0) {
    cboBautismo[Institucion].setLocked(true);
    cmdAltaInstitucion.setEnabled(false);
  }
  if (lngLibro != 0) {
    const store::Recordset fila =
        conBaseDatos->Execute("SELECT nuevo,nombre FROM libro_bautismo WHERE idlibrobautismo=" +
                              std::to_string(lngLibro));
    if (!fila.flag("nuevo")) {
      Operacion = cCOperacion::ANTIGUA;
      cmdBautismo[ANULAR].setVisible(true);
      fechasRevisadas_.empezar(false);
      abrirPosicion(true);
    }
    cboBautismo[Libro].setLocked(true);
    cmdAltaLibro.setEnabled(false);
    listas_->fijarLibro(lngLibro, fila.text("nombre"));
  } else if (lngInstitucion != 0) {
    llenarLibros();
  }
  if (Origen == cCOrigen::PRINCIPAL && lngInstitucion == 0) listas_->elegirUltimaInstitucion();
}

void frmPartidaBautismo::prepararSolicitud() {
  cboBautismo[Libro].setVisible(false);
  fraLibro.setVisible(false);
  cmdAltaLibro.setVisible(false);
  fechasRevisadas_.permitirFuturo(adtpBautismo[FechaBautismo]);  // it is still to be held
  const bool edicion = Operacion == cCOperacion::EDITARSOLICITUD;
  if (edicion) {
    leerPartida();
    InstitucionSolicitud = registro_.CodInstitucionBautismo;
  }
  listas_->cargarInstituciones(edicion ? 0 : InstitucionSolicitud);
  if (edicion) {
    cboBautismo[Institucion].selectData(InstitucionSolicitud);
    mostrarRegistro();
  } else if (InstitucionSolicitud == 0)
    listas_->elegirUltimaInstitucion();
}

void frmPartidaBautismo::prepararEdicion() {
  if (desdeLista())
    registro_ = colPartidas->at(lngPosicion);
  else
    leerPartida();
  const store::Recordset libro = conBaseDatos->Execute(
      "SELECT nuevo,nombre,codinstitucion FROM libro_bautismo WHERE idlibrobautismo=" +
      std::to_string(registro_.CodLibroBautismo));
  if (libro.EOF_()) throw std::runtime_error("El libro de la partida ya no existe.");
  libroNuevo_ = libro.flag("nuevo");
  listas_->cargarInstituciones(static_cast<std::int32_t>(libro.integer("codinstitucion")));
  listas_->fijarLibro(registro_.CodLibroBautismo, libro.text("nombre"));
  for (const Lista lista : {Institucion, Libro}) cboBautismo[lista].setLocked(true);
  cmdAltaInstitucion.setEnabled(false);
  cmdAltaLibro.setEnabled(false);
  anulada_ = registro_.AnuladaBautismo;
  mostrarRegistro();
  mostrarAnulada();
}

void frmPartidaBautismo::leerPartida() {
  const std::string id = std::to_string(lngID);
  const store::Recordset fila =
      conBaseDatos->Execute("SELECT * FROM bautismo WHERE idbautismo=" + id);
  if (fila.EOF_()) throw std::runtime_error("La partida ya no existe.");
  copiarFila(TABLA_BAUTISMO, fila, registro_);
  registro_.Estado = true;
  registro_.IDBautismo = registro_.CodBautismo = lngID;
  registro_.IDLibroBautismo = registro_.CodLibroBautismo;
  registro_.IDPadres = registro_.CodPadres;
  registro_.IDMadres = registro_.CodMadres;
  registro_.IDMatrimonio = registro_.CodMatrimonio;

  bool completa = true;
  const auto leer = [&](const Tabla<cBautismo>& tabla, const std::string& sql) {
    const store::Recordset dependiente = conBaseDatos->Execute(sql);
    completa = completa && !dependiente.EOF_();
    if (!dependiente.EOF_()) copiarFila(tabla, dependiente, registro_);
  };
  leer(TABLA_HIJO, "SELECT * FROM bautismo_hijo WHERE codbautismo=" + id);
  leer(TABLA_MADRES,
       "SELECT * FROM bautismo_madres WHERE idmadres=" + std::to_string(registro_.CodMadres));
  leer(TABLA_PADRES,
       "SELECT * FROM bautismo_padres WHERE idpadres=" + std::to_string(registro_.CodPadres));
  leer(TABLA_MATRIMONIO, "SELECT * FROM bautismo_matrimonio WHERE idmatrimonio=" +
                             std::to_string(registro_.CodMatrimonio));
  // An update of a row that is gone would lose what is typed for it.
  if (!completa) forms::warn(ui(), MENSAJE_CARGA_INCOMPLETA);
  incompleta_ = !completa;
}

void frmPartidaBautismo::mostrarRegistro() {
  for (const auto& e : textos_) e.campo->setText(registro_.*e.miembro);
  for (const auto& e : municipios_) e.campo->poner(registro_.*e.miembro);
  for (const auto& e : fechas_) e.campo->setStored(registro_.*e.miembro);
  txtHoraNac.setStored(registro_.HoraNacHijo);
  if (!enBlanco(registro_.SexoHijo)) cboBautismo[Sexo].selectText(registro_.SexoHijo);
  txtLibro[FOLIO].setText(registro_.FolioBautismo);
  txtLibro[NUMERO].setText(registro_.NumeroBautismo);
  apellidosBuscados_ = {parDeApellidos()};
}

void frmPartidaBautismo::mostrarAnulada() {
  lblPartidaAnulada.setVisible(anulada_);
  cmdBautismo[ANULAR].setCaption(anulada_ ? "&Validar" : "A&nular");
  if (Operacion == cCOperacion::EDITAR) abrirPosicion(!libroNuevo_ && !anulada_);
}

}  // namespace fidaleon
