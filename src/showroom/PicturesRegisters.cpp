#include "showroom/PicturesRegisters.h"

#include "core/statements/Citas.h"
#include "core/statements/Sentencia.h"
#include "documents/Duplicada.h"
#include "documents/frmInfFormato3.h"
#include "documents/frmInfNotConf.h"
#include "documents/frmInfNotConfDatos.h"
#include "printing/DocumentReport.h"
#include "registers/allocation/PosicionPartida.h"
#include "registers/common/FormaPartida.h"
#include "registers/entry/DialogoDePartida.h"
#include "registers/lookup/frmBuscaPadres.h"
#include "registers/lookup/frmDetallePadres.h"
#include "registers/requests/OrigenSolicitudes.h"
#include "showroom/DemoScripts.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

using demo::at;
using forms::FormDriver;

constexpr std::int32_t OWN = 1;  // of the two institutions
constexpr int PAGES_OF_A_DOSSIER = 14;

/// "bautismo-partida-nueva"
std::string named(const Sacramento& s, const char* what) {
  return text::lower(s.palabra) + "-" + what;
}

std::string node(const char* what, const Sacramento& s) {
  return std::string(what) + s.palabra;
}

std::string lastYear(store::Connection& parish, const Sacramento& s) {
  const std::string day = formaPartida(s)->fecha;
  std::string last;
  for (const FilaDePartida& row : formaPartida(s)->filas)
    if (parish.schema().find(row.tabla)->find(day))
      last = parish
                 .Execute("SELECT " + day + " FROM " + row.tabla + " WHERE " + row.clave +
                          " IN (SELECT " + row.enlace +
                          sentencia(s, " FROM {Partidas} WHERE CodLibro<>0) ORDER BY ") + day +
                          " DESC")
                 .text(day);
  return last.substr(0, 4);
}

void typeNotice(FormDriver& d) {
  using D = frmInfNotConfDatos;
  for (const auto& [field, what] : {std::pair{D::Nombre, "Jimena"},
                                    {D::PrimerApellido, "Ortega"},
                                    {D::SegundoApellido, "Salas"},
                                    {D::Edad, "16"},
                                    {D::Ministro, "Jerónimo Valdivieso Arce"},
                                    {D::Padrino, "Teresa Salas Ruiz"},
                                    {D::ParroquiaBaut, "Santa María la Mayor"},
                                    {D::DireccionBaut, "Plaza Mayor, 2"},
                                    {D::LibroBaut, "XXXII"},
                                    {D::FolioBaut, "118"},
                                    {D::NumeroBaut, "236"}})
    d.type(at("txtNotifica", field), what);
  d.type(at("adtpNotifica", D::FechaConfirmacion), "17/05/2025");
  d.type(at("adtpNotifica", D::FechaBautismo), "28/02/2009");
}

void acceptNotice(FormDriver& d) {
  typeNotice(d);
  d.click(at("cmdNotifica", frmInfNotConfDatos::ACEPTAR));
}

void addNotice(Photographer& user, FormDriver& list) {
  user.pose = acceptNotice;
  list.click(at("cmdNotificacion", frmInfNotConf::AGREGAR));
}

void toNotices(FormDriver& d) {
  d.chooseData("cboInstitucion", OWN);
  d.tab("mstNotificacion", frmInfNotConf::NOTIFICACIONES);
}

}  // namespace

void RegisterPictures::entries() {
  for (const Sacramento& s : SACRAMENTOS)
    if (dialogoDePartida(&s)) entriesOf(s);
}

void RegisterPictures::entriesOf(const Sacramento& s) {
  const std::string entries = node("Partidas", s);
  const std::string requests = node("Solicitudes", s);
  const auto properties = [&](const char* name, std::int32_t id) {
    user_.take(named(s, name),
               [&] { nucleo().PropiedadesPartida(parish(), id, config(), entries); });
  };
  user_.take(named(s, "partida-nueva"),
             [&] { nucleo().NuevaPartida(parish(), config(), entries); });
  user_.take(named(s, "partida-antigua"),
             [&] { nucleo().AntiguaPartida(parish(), config(), entries); });
  properties("partida-propiedades-libro-nuevo", newest(s));
  properties("partida-propiedades-libro-antiguo", 1);
  if (const std::int32_t id =
          one(sentencia(s, "SELECT {IDPartida} FROM {Partidas} WHERE Anulada=true")))
    properties("partida-anulada", id);
  if (!origenSolicitudes(&s)) return;
  user_.take(named(s, "solicitud-nueva"),
             [&] { nucleo().NuevaSolicitud(parish(), config(), requests); });
  user_.take(named(s, "solicitud-propiedades"),
             [&] { nucleo().PropiedadesSolicitudes(parish(), request(s), config(), requests); });
}

void RegisterPictures::documents() {
  const std::string edition = desk_.entorno().installation.Aplicacion;
  for (const Documento& d : documentos()) {
    if (documento(*d.sacramento, d.orden, edition) != &d || !dialogoDePartida(d.sacramento))
      continue;
    user_.pose = poseFor(d);
    const auto report = makeReport(desk_, d, sampleOf(d));
    user_.pose = {};
    album_.add(documentName(d), report,
               d.clase == ClaseDocumento::Solicitud ? PAGES_OF_A_DOSSIER : 2);
  }
}

void RegisterPictures::others() {
  newBooks();
  for (const Sacramento& s : SACRAMENTOS) {
    if (!dialogoDePartida(&s)) continue;
    bookOf(s);
    lookUpOf(s);
    detailsOf(s);
    if (origenSolicitudes(&s)) moveRequestsOf(s);
  }
  for (const documents::Duplicada& d : documents::duplicadas())
    user_.take(named(d.sacramento, "duplicadas"), [&] {
      std::string order;
      nucleo().ImprimirDuplicadas(parish(), desk_.reports(), d.nodo, order);
    });
  notices();
  ofDossiers();
}

void RegisterPictures::newBooks() {
  for (const Sacramento& s : SACRAMENTOS) {
    user_.pose = [](FormDriver& d) {
      auto& list = d.get<forms::ComboBox>("cboInstituciones");
      if (list.listCount() > 0) d.choose("cboInstituciones", list.list(0));
      d.click("optAntiguo");
    };
    user_.take(named(s, "libro-alta"),
               [&] { nucleo().NuevoLibro(parish(), config(), node("Libros", s)); });
  }
}

void RegisterPictures::bookOf(const Sacramento& s) {
  const auto open = [&](const char* name, std::int32_t id) {
    user_.take(named(s, name),
               [&] { nucleo().PropiedadesLibro(parish(), id, config(), node("Libros", s)); });
  };
  const auto firstBook = [&](const char* which) {
    return one(sentencia(s, "SELECT {IDLibro} FROM {Libros} WHERE ") + which);
  };
  open("libro-nuevo-abierto", openBook(s));
  open("libro-antiguo", firstBook("Nuevo=false"));
  open("libro-nuevo-cerrado", firstBook("Cerrado=true"));
}

void RegisterPictures::moveRequestsOf(const Sacramento& s) {
  user_.pose = [](FormDriver& d) {
    d.chooseData("cboInstitucion", OWN);
    d.tab("mstSolicitudes", 1);
    auto& requests = d.get<forms::ListBox>("lstSolicitudes(0)");
    if (requests.listCount() > 1) requests.setSelected(1, true);
    d.click("cmdMover(0)");
  };
  user_.take(named(s, "pasar-solicitudes"),
             [&] { nucleo().ImportarSolicitudes(parish(), config(), node("Solicitudes", s)); });
}

void RegisterPictures::lookUpOf(const Sacramento& s) {
  Contexto context(desk_.entorno());
  context.gobjConfig = &config();
  frmBuscaPadres search(context);
  search.conBaseDatos = &parish();
  search.Origen = origenLista(s);
  const auto first = parish().Execute("SELECT * FROM Bautismo_Hijo WHERE CodBautismo=1");
  auto set = parish().Execute(
      "SELECT IDBautismo, Nombre, PrimerApellido, SegundoApellido, FechaBautismo, CodPadres, "
      "CodMadres, CodMatrimonio FROM Bautismo, Bautismo_Hijo WHERE CodBautismo=IDBautismo AND "
      "PrimerApellido=" +
      entreComillas(first.text("PrimerApellido")) +
      " AND SegundoApellido=" + entreComillas(first.text("SegundoApellido")));
  const auto key = [&](const char* column) {
    return static_cast<std::int32_t>(set.integer(column));
  };
  for (; !set.EOF_(); set.MoveNext()) {
    search.strApellidos = set.text("PrimerApellido") + " " + set.text("SegundoApellido");
    search.filas.push_back({key("IDBautismo"), set.text("Nombre"), set.text("PrimerApellido"),
                            set.text("SegundoApellido"), set.text("FechaBautismo"),
                            key("CodPadres"), key("CodMadres"), key("CodMatrimonio")});
  }
  user_.take(named(s, "busqueda"), [&] { search.Show(); });
}

void RegisterPictures::detailsOf(const Sacramento& s) {
  const auto show = [&](const char* name, FDAPI::cCOrigen origin, std::int32_t id) {
    Contexto context(desk_.entorno());
    context.gobjConfig = &config();
    frmDetallePadres details(context);
    details.conBaseDatos = &parish();
    details.Origen = origin;
    details.lngID = id;
    user_.take(named(s, name), [&] { details.Show(); });
  };
  show("detalle", origenLista(s), 1);
  if (const OrigenSolicitudes* requests = origenSolicitudes(&s))
    show("detalle-solicitud", requests->detalle, request(s));
}

void RegisterPictures::notices() {
  user_.pose = [this](FormDriver& d) {
    toNotices(d);
    addNotice(user_, d);
    user_.pose = typeNotice;
    user_.next = "confirmacion-notificacion-sin-libro";
    d.click(at("cmdNotificacion", frmInfNotConf::AGREGAR));
  };
  user_.take("confirmacion-notificaciones-sin-libro",
             [&] { nucleo().ImprimirPartidaSinLibro(parish(), desk_.reports(), config()); });
}

/// What the documents of a marriage ask before they are printed.
void RegisterPictures::ofDossiers() {
  const std::int32_t dossier = request(MATRIMONIO);
  user_.take("matrimonio-exhorto",
             [&] { nucleo().InformeExhortoMatrimonio(parish(), desk_.reports(), dossier); });
  user_.take("matrimonio-fecha-de-impresion", [&] {
    nucleo().InformeVolanteMatrimonio(parish(), desk_.reports(), newest(MATRIMONIO));
  });
  user_.take("matrimonio-formato-3", [&] {
    bool inParish = false, toCuria = false, toCuriaBefore = false;
    nucleo().InformeExpedienteFormato3(parish(), desk_.reports(), dossier, inParish, toCuria,
                                       toCuriaBefore);
  });
}

std::string RegisterPictures::documentName(const Documento& d) const {
  return "documento-" + edition_ + "-" + plainName(d.plantilla);
}

std::int32_t RegisterPictures::sampleOf(const Documento& d) {
  switch (d.clase) {
    case ClaseDocumento::Solicitud:
      return request(*d.sacramento);
    case ClaseDocumento::Libro:
      return openBook(*d.sacramento);
    case ClaseDocumento::Partida:
      return newest(*d.sacramento);
    case ClaseDocumento::Duplicada:
    case ClaseDocumento::SinLibro:
      return 0;
  }
  return 0;
}

std::function<void(FormDriver&)> RegisterPictures::poseFor(const Documento& d) {
  if (d.clase == ClaseDocumento::Duplicada)
    return [year = lastYear(parish(), *d.sacramento)](FormDriver& dialog) {
      dialog.chooseData("cboInstitucion", OWN);
      dialog.type("adtpAno", year);
      dialog.choose("cboOrden", dialog.get<forms::ComboBox>("cboOrden").list(0));
      dialog.click("cmdBoton(0)");
    };
  if (d.clase == ClaseDocumento::SinLibro)
    return [this](FormDriver& list) {
      toNotices(list);
      addNotice(user_, list);
      list.click(at("cmdNotificacion", frmInfNotConf::IMPRIMIR));
    };
  return [this](FormDriver& dialog) { acceptAsked(dialog); };
}

/// Whatever the document asks, one form after the other.
void RegisterPictures::acceptAsked(FormDriver& d) {
  user_.pose = [this](FormDriver& next) { acceptAsked(next); };
  if (d.form().name() == "frmInfFormato3")
    for (const auto way : {frmInfFormato3::TRAMITA, frmInfFormato3::CURIA})
      d.click(at("chkOpcion", way));
  d.click("cmdBoton(0)");
}

std::int32_t RegisterPictures::one(const std::string& sql) {
  const auto rows = parish().Execute(sql);
  return rows.EOF_() ? 0 : static_cast<std::int32_t>(rows.Fields(0).Value().integer());
}

std::int32_t RegisterPictures::openBook(const Sacramento& s) {
  return one(sentencia(s, "SELECT {IDLibro} FROM {Libros} WHERE Nuevo=true AND Cerrado=false"));
}

std::int32_t RegisterPictures::newest(const Sacramento& s) {
  return one(sentencia(s,
                       "SELECT MAX({IDPartida}) AS ID FROM {Partidas} WHERE CodLibro<>0 AND "
                       "Anulada=false"));
}

std::int32_t RegisterPictures::request(const Sacramento& s) {
  return one(sentencia(s, "SELECT MAX({IDPartida}) AS ID FROM {Partidas} WHERE CodLibro=0"));
}

}  // namespace fidaleon::app
