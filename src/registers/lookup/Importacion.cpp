#include "registers/lookup/Importacion.h"

namespace fidaleon {

namespace {

using B = Bautizado;
using C = cConfirmacion;
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

std::span<const ParImportado<D>> importadoDeDefuncion() {
  return DEFUNCION_DE_BAUTISMO;
}

}  // namespace fidaleon
