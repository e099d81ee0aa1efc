// The book itself: loading, name and name type.

#include "registers/books/frmPropiedadesLibro.h"

#include <array>
#include <stdexcept>

#include "core/statements/Sentencia.h"
#include "registers/books/VariantePropiedadesLibro.h"

namespace fidaleon {

using store::Recordset;

namespace {

constexpr std::array<VariantePropiedadesLibro, 4> VARIANTES{{
    {"Propiedades del Libro de Bautismo", &cIListas::ConfigGridPropiedadesLibro,
     cIListas::RUTA_PROPIEDADES_LIBRO},
    {"Propiedades del Libro de Confirmación", &cIListas::ConfigGridPropiedadesLibro,
     cIListas::RUTA_PROPIEDADES_LIBRO},
    {"Propiedades del Libro de Matrimonio", &cIListas::ConfigGridPropiedadesLibroMatrimonio,
     cIListas::RUTA_PROPIEDADES_LIBRO_MATRIMONIO},
    {"Propiedades del Libro de Defunción", &cIListas::ConfigGridPropiedadesLibro,
     cIListas::RUTA_PROPIEDADES_LIBRO},
}};

constexpr const char* MENSAJE_QUEDAN_A_MEDIAS =
    "Hay partidas que han quedado guardadas a medias y no se han podido retirar. Las encontrará en "
    "Registro, «Partidas incompletas».";

}  // namespace

frmPropiedadesLibro::frmPropiedadesLibro(Contexto& contexto, const Sacramento& sacramento,
                                         std::unique_ptr<PartidasDeLibro> partidas)
    : Dialogo(contexto, std::string("frmPropiedadesLibro") + sacramento.palabra),
      mstLibro(*this, "mstLibro", {VARIANTES.at(sacramento.byte).pestana, "PARTIDAS"}),
      txtInstitucion(*this, "txtInstitucion", "Institución:"),
      txtFormato(*this, "txtFormato", "Formato:"),
      cboTipoNombre(*this, "cboTipoNombre", "Tipo de nombre:"),
      txtNombreLibro(*this, "txtNombreLibro", "Nombre del libro:"),
      txtFolios(*this, "txtFolios", "Número de folios:"),
      dtpFecha(*this, "dtpFecha", "Fecha de creación:"),
      msgPartidas(*this, "msgPartidas"),
      cmdPartidas(*this, "cmdPartidas"),
      cmdBoton(*this, "cmdBoton"),
      sacramento_(sacramento),
      variante_(VARIANTES.at(sacramento.byte)),
      partidas_(std::move(partidas)) {
  prepararControles();
}

void frmPropiedadesLibro::prepararControles() {
  forms::Button& agregarBoton = cmdPartidas.add(AGREGAR, "AGREGAR");
  forms::Button& propiedadesBoton = cmdPartidas.add(PROPIEDADES, "PROPIEDADES");
  forms::Button& anularBoton = cmdPartidas.add(ANULAR, "ANULAR");
  forms::Button& eliminarBoton = cmdPartidas.add(ELIMINAR, "ELIMINAR");
  forms::Button& aceptarBoton = cmdBoton.add(ACEPTAR, "ACEPTAR");
  forms::Button& cancelarBoton = cmdBoton.add(CANCELAR, "CANCELAR");
  aceptarBoton.setDefault(true);
  cancelarBoton.setCancel(true);
  txtNombreLibro.setQuoteRule(forms::QuoteRule::Remove);
  for (forms::TextBox* campo : {&txtInstitucion, &txtFormato, &txtFolios}) campo->setLocked(true);
  setLayout(forms::column({
      forms::tabs(mstLibro, {forms::page({forms::fields(
                                 1, {forms::item(txtInstitucion), forms::item(txtFormato),
                                     forms::item(cboTipoNombre), forms::item(txtNombreLibro),
                                     forms::item(txtFolios), forms::item(dtpFecha)})}),
                             forms::page({forms::item(msgPartidas),
                                          forms::buttons({&agregarBoton, &propiedadesBoton,
                                                          &anularBoton, &eliminarBoton})})}),
      forms::buttons({&aceptarBoton, &cancelarBoton}),
  }));
  mstLibro.onClick = [this](int) { mstLibro_Click(); };
  cboTipoNombre.onClick = [this] { cboTipoNombre_Click(); };
  msgPartidas.onRowChange = [this] { msgPartidas_RowChange(); };
  msgPartidas.onDblClick = [this] { msgPartidas_DblClick(); };
  for (const auto& [indice, boton] : cmdPartidas.all())
    boton->onClick = [this, indice = indice] { cmdPartidas_Click(Entrada(indice)); };
  for (const auto& [indice, boton] : cmdBoton.all())
    boton->onClick = [this, indice = indice] { cmdBoton_Click(Boton(indice)); };
}

std::string frmPropiedadesLibro::sentencia(const PlantillaSql& plantilla) const {
  return fidaleon::sentencia(sacramento_, plantilla);
}

bool frmPropiedadesLibro::hayFilas(const std::string& sql) {
  return conBaseDatos->Execute(sql).RecordCount() != 0;
}

void frmPropiedadesLibro::Form_Load() {
  cargado_ = procedimiento("Form_Load()", [this] { cargar(); }) &&
             partidas_->cargar(*conBaseDatos, lngLibro);
  // A list that is not whole must never be accepted over what is stored.
  if (!cargado_) return Unload();
  CargarGridPartidasDColeccion();
}

void frmPropiedadesLibro::cargar() {
  sesion_.emplace(contexto_, *conBaseDatos);
  const Recordset fila =
      conBaseDatos->Execute(sentencia("SELECT * FROM {Libros} WHERE IdLibro{Palabra}=") + libro());
  if (fila.EOF_()) throw std::runtime_error("El libro ya no existe.");
  mostrarLibro(fila);
  cerrado_ = nuevo_ && fila.flag("cerrado");
  if (fila.flag("cerrado")) cerrarDatos();
  txtFolios.setText(std::to_string(ContarFolios()));
  configurarRejilla();
}

void frmPropiedadesLibro::mostrarLibro(const Recordset& fila) {
  const Recordset institucion =
      conBaseDatos->Execute("SELECT IDInstitucion, Nombre FROM Institucion WHERE IDInstitucion=" +
                            fila.text("codInstitucion"));
  txtInstitucion.setText(institucion.text("Nombre"));
  institucion_ = static_cast<std::int32_t>(institucion.integer("IDInstitucion"));
  nombreViejo_ = fila.text("nombre");
  txtNombreLibro.setText(nombreViejo_);
  nuevo_ = fila.flag("Nuevo");
  setCaption(nombreViejo_ + (nuevo_ ? " (Libro Nuevo)" : " (Libro Antiguo)"));
  mostrarTipoNombre(fila.integer("codtiponombre"));
  const Recordset formato = conBaseDatos->Execute("SELECT * FROM Libros_Formato WHERE IdFormato=" +
                                                  fila.text("codFormato"));
  txtFormato.setText(formato.text("Descripcion"));
  fechaEnTabla_ = fila.text("Fechacreacion");
  dtpFecha.setStored(fechaEnTabla_);
  fechaLeida_ = dtpFecha.stored();
}

void frmPropiedadesLibro::mostrarTipoNombre(std::int64_t tipo) {
  cIListas(contexto_).fillTipoNombre(cboTipoNombre, *conBaseDatos, nuevo_ ? "Nuevo" : "Antiguo");
  // The list offers types 1 and 4 for new books and all from 2 on for old ones.
  const int nueva = tipo == 1 ? 0 : 1;
  cboTipoNombre.setListIndex(nuevo_ ? nueva : static_cast<int>(tipo) - 2);
  tipo_ = tipoViejo_ = tipo;
  txtNombreLibro.setLocked(tipo != NOMBRE_ABIERTO);
}

void frmPropiedadesLibro::cerrarDatos() {
  forms::warn(ui(), "¡El libro " + nombreViejo_ +
                        " está cerrado; no se pueden cambiar datos del libro. Sólo se podrán "
                        "modificar las partidas!");
  sinNombre();
  dtpFecha.setEnabled(false);
}

std::int64_t frmPropiedadesLibro::ContarFolios() {
  std::int64_t folios = 0;
  procedimiento("ContarFolios()", [&] {
    folios = conBaseDatos
                 ->Execute(sentencia("SELECT DISTINCT Folio FROM {Partidas} WHERE codLibro = ") +
                           libro() + " ORDER BY Folio")
                 .RecordCount();
  });
  return folios;
}

void frmPropiedadesLibro::configurarRejilla() {
  cIListas listas(contexto_);
  (listas.*variante_.configurar)(msgPartidas);
}

void frmPropiedadesLibro::Form_Unload() {
  if (!partidas_->retirarAMedias(*conBaseDatos)) forms::warn(ui(), MENSAJE_QUEDAN_A_MEDIAS);
  sesion_.reset();
  if (!cargado_) return;
  procedimiento("Form_Unload()", [this] {
    contexto_.entorno.support.create_cIListas()->SaveGrid(msgPartidas,
                                                          cIListas(contexto_).ruta(variante_.ruta));
  });
}

void frmPropiedadesLibro::sinNombre() {
  txtNombreLibro.setEnabled(false);
  cboTipoNombre.setEnabled(false);
}

void frmPropiedadesLibro::mstLibro_Click() {
  procedimiento("mstLibro_Click()", [this] {
    const bool enPartidas = mstLibro.tab() == TAB_PARTIDAS;
    forms::Control& primero =
        enPartidas ? static_cast<forms::Control&>(cmdPartidas[AGREGAR]) : cboTipoNombre;
    forms::Control& otro = enPartidas ? static_cast<forms::Control&>(msgPartidas) : txtInstitucion;
    setFocus(primero.reachable() ? primero : otro);
  });
}

void frmPropiedadesLibro::cboTipoNombre_Click() {
  if (!cargado_) return;
  procedimiento("cboTipoNombre_Click()", [this] {
    if (cboTipoNombre.listIndex() < 0 || cboTipoNombre.data() == tipo_) return;
    tipo_ = cboTipoNombre.data();
    txtNombreLibro.setLocked(tipo_ != NOMBRE_ABIERTO);
    if (tipo_ == tipoViejo_)
      txtNombreLibro.setText(nombreViejo_);
    else
      construirNombre(tipo_);
  });
}

void frmPropiedadesLibro::construirNombre(std::int64_t tipo) {
  if (tipo == NOMBRE_ABIERTO) return;
  const forms::Hourglass reloj(ui());
  bool sinNombres = false;
  const std::string nombre = cIListas(contexto_).ObtenerNombreLibro(
      *conBaseDatos, tipo, institucion_, sacramento_.byte, sinNombres);
  if (sinNombres)
    cboTipoNombre.selectData(NOMBRE_ABIERTO);
  else
    txtNombreLibro.setText(nombre);
}

}  // namespace fidaleon
