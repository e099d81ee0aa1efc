#include "core/lists/Rejilla.h"

#include "core/lists/cIListas.h"

namespace fidaleon {

namespace {

Rejilla busquedaDeBautizado(const char* camino) {
  return {camino,
          {{"Nombre", 1980},
           {"Primer apellido", 1650},
           {"Segundo apellido", 1650},
           {"Fecha de bautismo", 1500}}};
}

Rejilla mensajes(const char* segunda) {
  return {cIListas::RUTA_MENSAJES, {{"Tipo", 1000}, {segunda, 4500}, {"Recibido el"}}};
}

}  // namespace

const Rejilla& rejillaPropiedadesLibro() {
  static const Rejilla r{cIListas::RUTA_PROPIEDADES_LIBRO,
                         {{"Folio"},
                          {"Número"},
                          {"Nombre", 1200},
                          {"1er Apellido", 1200},
                          {"2º Apellido", 1200},
                          {"Fecha", 1200},
                          {"Anulada"}}};
  return r;
}

const Rejilla& rejillaPropiedadesLibroMatrimonio() {
  static const Rejilla r{cIListas::RUTA_PROPIEDADES_LIBRO_MATRIMONIO,
                         {{"Folio", 800},
                          {"Número", 900},
                          {"Nombre Novio", 1200},
                          {"1er Apellido Novio", 1425},
                          {"2º Apellido Novio", 1380},
                          {"Nombre Novia", 1200},
                          {"1er Apellido Novia", 1425},
                          {"2º Apellido Novia", 1380},
                          {"Fecha Matrimonio", 1410},
                          {"Anulada", 960}}};
  return r;
}

const Rejilla& rejillaBuscaPadres() {
  static const Rejilla r{cIListas::RUTA_BUSCA_PADRES,
                         {{"Nombre del padre", 1300},
                          {"Primer apellido", 1260},
                          {"Segundo apellido", 1470},
                          {"Nombre de la madre", 1620},
                          {"Primer apellido", 1260},
                          {"Segundo apellido", 1470}}};
  return r;
}

const Rejilla& rejillaBuscaConfirmacion() {
  static const Rejilla r = busquedaDeBautizado(cIListas::RUTA_BUSCA_CONFIRMACION);
  return r;
}

const Rejilla& rejillaBuscaMatrimonio() {
  static const Rejilla r = busquedaDeBautizado(cIListas::RUTA_BUSCA_MATRIMONIO);
  return r;
}

const Rejilla& rejillaBuscaDefuncion() {
  static const Rejilla r = busquedaDeBautizado(cIListas::RUTA_BUSCA_DEFUNCION);
  return r;
}

const Rejilla& rejillaMensajes(bool entrada) {
  static const Rejilla recibidos = mensajes("Enviado el");
  static const Rejilla enviados = mensajes("Para");
  return entrada ? recibidos : enviados;
}

}  // namespace fidaleon
