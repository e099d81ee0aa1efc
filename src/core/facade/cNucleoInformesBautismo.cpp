#include "core/facade/Informe.h"
#include "core/facade/cNucleo.h"

namespace fidaleon {

namespace {

template <class Miembro, class... Dados>
void informeBautismo(Contexto& contexto, const char* nombre, Miembro miembro,
                     FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes, std::int32_t lngID,
                     const Dados&... argumentos) {
  informe(contexto, nombre, "Bautismo", "IdBautismo", miembro, conFidaleon, conInformes, lngID,
          argumentos...);
}

}  // namespace

void cNucleo::InformeCertificadoPartidaBautismo(FDAPI::Conexion& conFidaleon,
                                                FDAPI::Conexion& conInformes, std::int32_t lngID,
                                                const std::string& strEncargado,
                                                const std::string& strFecha) {
  informeBautismo(contexto_, "InformeCertificadoPartidaBautismo",
                  &cInformes::ImprimirCertificadoPartidaBautismo, conFidaleon, conInformes, lngID,
                  strEncargado, strFecha);
}

void cNucleo::InformeCertificadoPartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                                       FDAPI::Conexion& conInformes,
                                                       std::int32_t lngID,
                                                       const std::string& strEncargado,
                                                       const std::string& strFecha) {
  informeBautismo(contexto_, "InformeCertificadoPartidaBautismoMenorca",
                  &cInformes::ImprimirCertificadoPartidaBautismoMenorca, conFidaleon, conInformes,
                  lngID, strEncargado, strFecha);
}

void cNucleo::InformeCertificadoLiteralPartidaBautismo(FDAPI::Conexion& conFidaleon,
                                                       FDAPI::Conexion& conInformes,
                                                       std::int32_t lngID,
                                                       const std::string& strEncargado,
                                                       const std::string& strFecha) {
  informeBautismo(contexto_, "InformeCertificadoLiteralPartidaBautismo",
                  &cInformes::ImprimirCertificadoLiteralPartidaBautismo, conFidaleon, conInformes,
                  lngID, strEncargado, strFecha);
}

void cNucleo::InformeCertificadoLiteralPartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                                              FDAPI::Conexion& conInformes,
                                                              std::int32_t lngID,
                                                              const std::string& strEncargado,
                                                              const std::string& strFecha) {
  informeBautismo(contexto_, "InformeCertificadoLiteralPartidaBautismoMenorca",
                  &cInformes::ImprimirCertificadoLiteralPartidaBautismoMenorca, conFidaleon,
                  conInformes, lngID, strEncargado, strFecha);
}

void cNucleo::InformePartidaBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                     std::int32_t lngID) {
  informeBautismo(contexto_, "InformePartidaBautismo", &cInformes::ImprimirPartidaBautismo,
                  conFidaleon, conInformes, lngID);
}

void cNucleo::InformePartidaBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                            FDAPI::Conexion& conInformes, std::int32_t lngID) {
  informeBautismo(contexto_, "InformePartidaBautismoMenorca",
                  &cInformes::ImprimirPartidaBautismoMenorca, conFidaleon, conInformes, lngID);
}

void cNucleo::InformeVolanteBautismo(FDAPI::Conexion& conFidaleon, FDAPI::Conexion& conInformes,
                                     std::int32_t lngID) {
  informeBautismo(contexto_, "InformeVolanteBautismo", &cInformes::ImprimirVolanteBautismo,
                  conFidaleon, conInformes, lngID);
}

void cNucleo::InformeVolanteBautismoMenorca(FDAPI::Conexion& conFidaleon,
                                            FDAPI::Conexion& conInformes, std::int32_t lngID) {
  informeBautismo(contexto_, "InformeVolanteBautismoMenorca", &cInformes::ImprimirVolanteBautismo,
                  conFidaleon, conInformes, lngID);
}

void cNucleo::InformeSolicitudPartidaBautismoDatos(FDAPI::Conexion& conFidaleon,
                                                   FDAPI::Conexion& conInformes,
                                                   std::int32_t lngID) {
  informeBautismo(contexto_, "InformeSolicitudPartidaBautismoDatos",
                  &cInformes::ImprimirSolicitudPartidaBautismoDatos, conFidaleon, conInformes,
                  lngID);
}

void cNucleo::InformeSolicitudPartidaBautismoDatosMenorca(FDAPI::Conexion& conFidaleon,
                                                          FDAPI::Conexion& conInformes,
                                                          std::int32_t lngID) {
  informeBautismo(contexto_, "InformeSolicitudPartidaBautismoDatosMenorca",
                  &cInformes::ImprimirSolicitudPartidaBautismoDatosMenorca, conFidaleon,
                  conInformes, lngID);
}

void cNucleo::InformeSolicitudPartidaBautismoDatosSantiago(FDAPI::Conexion& conFidaleon,
                                                           FDAPI::Conexion& conInformes,
                                                           std::int32_t lngID) {
  informeBautismo(contexto_, "InformeSolicitudPartidaBautismoDatosSantiago",
                  &cInformes::ImprimirSolicitudPartidaBautismoDatosSantiago, conFidaleon,
                  conInformes, lngID);
}

}  // namespace fidaleon
