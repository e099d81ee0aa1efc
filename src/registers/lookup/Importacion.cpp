#include "registers/lookup/Importacion.h"

namespace fidaleon {

namespace {

using B = Bautizado;
using C = cConfirmacion;
using M = cMatrimonio;
using D = cDefuncion;

constexpr ParImportado<C> CONFIRMACION_DE_BAUTISMO[] = {
    {&B::ParroquiaBautismo, {&C::ParroquiaBaut}},
    {&B::CodPoblacionBautismo, {&C::CodMunicipioBaut}},
    {&B::FechaBautismo, {&C::FechaBaut}},
    {&B::NombreLibro, {&C::LibroBaut}},
    {&B::FolioBautismo, {&C::FolioBaut}},
    {&B::NumeroBautismo, {&C::NumeroBaut}},
    {&B::NombreHijo, {&C::Nombre}},
    {&B::PrimerApellidoHijo, {&C::PrimerApellido}},
    {&B::SegundoApellidoHijo, {&C::SegundoApellido}},
    {&B::CodPoblacionNacHijo, {&C::CodMunicipioNac}},
    {&B::FechaNacHijo, {&C::FechaNac}},
    {&B::PadreEntero, {&C::NombrePadre}},
    {&B::MadreEntera, {&C::NombreMadre}},
    {&B::DireccionPadresMatrimonio, {&C::Domicilio}},
    {&B::CodPoblacionPadresMatrimonio, {&C::CodMunicipioDomicilio}},
};

constexpr ParImportado<M, 2> MATRIMONIO_DE_BAUTISMO[] = {
    {&B::ParroquiaBautismo, {&M::NovioParroquiaBaut, &M::NoviaParroquiaBaut}},
    {&B::CodPoblacionBautismo, {&M::NovioIDMunicipioBaut, &M::NoviaIDMunicipioBaut}},
    {&B::FechaBautismo, {&M::NovioFechaBaut, &M::NoviaFechaBaut}},
    {&B::NombreLibro, {&M::NovioLibroBaut, &M::NoviaLibroBaut}},
    {&B::FolioBautismo, {&M::NovioFolioBaut, &M::NoviaFolioBaut}},
    {&B::NumeroBautismo, {&M::NovioNumeroBaut, &M::NoviaNumeroBaut}},
    {&B::NombreHijo, {&M::NovioNombre, &M::NoviaNombre}},
    {&B::PrimerApellidoHijo, {&M::NovioPrimerApellido, &M::NoviaPrimerApellido}},
    {&B::SegundoApellidoHijo, {&M::NovioSegundoApellido, &M::NoviaSegundoApellido}},
    {&B::CodPoblacionNacHijo, {&M::NovioIDMunicipioNac, &M::NoviaIDMunicipioNac}},
    {&B::FechaNacHijo, {&M::NovioFechaNac, &M::NoviaFechaNac}},
    {&B::PadreEntero, {&M::NovioNombrePadre, &M::NoviaNombrePadre}},
    {&B::MadreEntera, {&M::NovioNombreMadre, &M::NoviaNombreMadre}},
    {&B::DireccionPadresMatrimonio, {&M::NovioDomicilioActual, &M::NoviaDomicilioActual}},
    {&B::CodPoblacionPadresMatrimonio, {&M::NovioIDMunicipioActual, &M::NoviaIDMunicipioActual}},
};

constexpr ParImportado<D> DEFUNCION_DE_BAUTISMO[] = {
    {&B::NombreHijo, {&D::Nombre}},
    {&B::PrimerApellidoHijo, {&D::PrimerApellido}},
    {&B::SegundoApellidoHijo, {&D::SegundoApellido}},
    {&B::CodPoblacionNacHijo, {&D::CodMunicipioNaturalDe}},
    {&B::PadreEntero, {&D::NombrePadre}},
    {&B::MadreEntera, {&D::NombreMadre}},
};

}  // namespace

std::span<const ParImportado<C>> importadoDeConfirmacion() {
  return CONFIRMACION_DE_BAUTISMO;
}

std::span<const ParImportado<M, 2>> importadoDeMatrimonio() {
  return MATRIMONIO_DE_BAUTISMO;
}

std::span<const ParImportado<D>> importadoDeDefuncion() {
  return DEFUNCION_DE_BAUTISMO;
}

}  // namespace fidaleon
