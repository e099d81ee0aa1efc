#pragma once
// One entry of each sacrament in a book of its own, all in one parish.

#include "BautismoWorld.h"

namespace fidaleon::tests {

struct PartidasWorld : BautismoWorld {
  PartidasWorld() {
    run("UPDATE Institucion SET Parroco=\"Andrés Gil\", EncargadoArchivo=\"Rosa Sanz\"");
    run("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (1, \"Pedro Ruiz\")");
    for (const char* libro : {"Libro_Confirmacion", "Libro_Defuncion"})
      run(std::string("INSERT INTO ") + libro +
          " (CodInstitucion, CodFormato, CodTipoNombre, Nombre, FechaCreacion, Nuevo) VALUES (1, "
          "3, 1, \"Libro IV\", \"20030101\", 1)");
    confirmar();
    enterrar();
  }

 private:
  void confirmar() {
    run("INSERT INTO Confirmacion (InstitucionSolicitud, Nombre, PrimerApellido, SegundoApellido, "
        "FechaNac, CodMunicipioNac, NombrePadre, NombreMadre, Domicilio, CodMunicipioDomicilio, "
        "FeligresDe, Parroquia, CodMunicipioParr, DiocesisParr, NotasMarginales, CodLibro, Folio, "
        "Numero, Anulada) VALUES (0, \"Lucía\", \"García\", \"Pérez\", \"20030401\", " +
        std::to_string(toledo) + ", \"Luis García Mora\", \"Ana Pérez Ruiz\", \"Calle Real, 7\", " +
        std::to_string(ecija) + ", \"San José\", \"Santa Ana\", " + std::to_string(getafe) +
        ", \"Getafe\", \"Se casó en 2030\", 1, 8, \"4b\", 0)");
    run("INSERT INTO Confirmacion_Datos (CodConfirmacion, FechaConfirmacion, Padrino, Ministro, "
        "CargoMinistro) VALUES (1, \"20190331\", \"Eva Ruiz\", \"Juan Soto\", \"Obispo\")");
    run("INSERT INTO Confirmacion_Bautismo (CodConfirmacion, FechaBaut, ParroquiaBaut, "
        "DireccionBaut, CodMunicipioBaut, LibroBaut, FolioBaut, NumeroBaut) VALUES (1, "
        "\"20030524\", \"San Ginés\", \"Calle Mayor, 1\", " +
        std::to_string(toledo) + ", \"2003/01\", 12, \"23a\")");
  }
  void enterrar() {
    run("INSERT INTO Defuncion (Nombre, PrimerApellido, SegundoApellido, CodMunicipioNaturalDe, "
        "DomicilioActual, CodMunicipioActual, EstadoCivil, Consorte, NumeroHijos, NombresHijos, "
        "NombrePadre, NombreMadre, Parroquia, CodMunicipioParr, DiocesisParr, NotasMarginales, "
        "CodLibro, Folio, Numero, Anulada, Parroco) VALUES (\"Antonio\", \"García\", \"Lara\", " +
        std::to_string(ecija) + ", \"Calle Real, 7\", " + std::to_string(getafe) +
        ", \"casado\", \"Rosa Mora\", \"2\", \"Luis y Eva\", \"Juan García\", \"Inés Lara\", "
        "\"Santa Ana\", " +
        std::to_string(getafe) + ", \"Getafe\", \"Cremado\", 1, 3, \"7\", 0, \"José Vidal\")");
    run("INSERT INTO Defuncion_Datos (CodDifunto, Causa, Edad, FechaDefuncion, HoraDefuncion, "
        "DomicilioDefn, CodMunicipioDefn, FechaInhumacion, Cementerio, Sacramentos, Sacerdote) "
        "VALUES (1, \"Infarto\", \"81\", \"20240229\", \"04:15\", \"Hospital\", " +
        std::to_string(toledo) + ", \"20240301\", \"San José\", \"Unción\", \"José Vidal\")");
  }
};

}  // namespace fidaleon::tests
