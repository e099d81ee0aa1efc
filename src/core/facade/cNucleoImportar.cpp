#include "core/facade/cNucleo.h"
#include "import/cImportarInpar.h"

namespace fidaleon {

void cNucleo::ImportarInparGP(
    FDAPI::Conexion& conBaseDatos, const FDAPI::ColEtiqueta& colEtiqueta,
    const std::string& strRuta1, const std::string& strRuta2, const std::string& strRuta3,
    const std::string& strRuta4, std::int32_t lngIDInstitucion, const std::string& strAno00,
    FDAPI::cProgreso& abpProgreso, bool blnBautismo, const std::string& strParroquiaBaut,
    const std::string& strDiocesisBaut, std::int32_t lngMunicipioBaut, bool blnConfirmacion,
    const std::string& strParroquiaConf, const std::string& strDiocesisConf,
    std::int32_t lngMunicipioConf, bool blnMatrimonio, const std::string& strParroquiaMatr,
    const std::string& strDiocesisMatr, std::int32_t lngMunicipioMatr, bool blnDefuncion,
    const std::string& strParroquiaDefn, const std::string& strDiocesisDefn,
    std::int32_t lngMunicipioDefn, std::uint8_t bytOrdenNombre, std::int32_t lngFolioBaut,
    std::int32_t lngFolioConf, std::int32_t lngFolioMatr, std::int32_t lngFolioDefn) {
  cImportarInpar inpar(contexto_);
  inpar.strAno00 = strAno00;
  inpar.bytOrdenNombre = bytOrdenNombre;
  inpar.strCodigos = codigosImportacion_;
  inpar.blnEnsayo = ensayoImportacion_;
  const cImportarInpar::Marco marco{conBaseDatos, colEtiqueta, lngIDInstitucion, abpProgreso};
  if (!strRuta1.empty())
    inpar.InparBautismo(
        marco, strRuta1,
        {blnBautismo, strParroquiaBaut, strDiocesisBaut, lngMunicipioBaut, lngFolioBaut});
  if (!strRuta2.empty())
    inpar.InparConfirmacion(
        marco, strRuta2,
        {blnConfirmacion, strParroquiaConf, strDiocesisConf, lngMunicipioConf, lngFolioConf});
  if (!strRuta3.empty())
    inpar.InparMatrimonio(
        marco, strRuta3,
        {blnMatrimonio, strParroquiaMatr, strDiocesisMatr, lngMunicipioMatr, lngFolioMatr});
  if (!strRuta4.empty())
    inpar.InparDefuncion(
        marco, strRuta4,
        {blnDefuncion, strParroquiaDefn, strDiocesisDefn, lngMunicipioDefn, lngFolioDefn});
  ultimaImportacion_ = inpar.resultado();
}

void cNucleo::OpcionesImportacion(const std::string& strCodigos, bool blnEnsayo) {
  codigosImportacion_ = strCodigos;
  ensayoImportacion_ = blnEnsayo;
}

}  // namespace fidaleon
