#pragma once
// The operations on people, groups and offices: each takes its locks, opens its dialog or asks, and
// gives everything back. Dialogs of this room call each other through these too. Refused locks end
// an operation silently; errors are thrown to the guard of the caller. The configuration stands in
// the context.

#include <cstdint>

#include "core/contract/Contexto.h"

namespace fidaleon::censo {

/// From where a dialog is reached: PRINCIPAL from the tree, COLABORADOR from the card of a
/// collaborator, ACTIVIDAD from that of an activity. Neither leads back to the other.
using FDAPI::cCOrigen;

void NuevoEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion);
void EditaEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);
void EliminaEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);

/// `blnOcultar` hides the buttons of the memberships.
void NuevoColaborador(Contexto& contexto, FDAPI::Conexion& conexion, bool blnOcultar = false,
                      cCOrigen origen = cCOrigen::PRINCIPAL);
void EditaColaborador(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                      cCOrigen origen = cCOrigen::PRINCIPAL);
void EliminaColaborador(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);

/// `blnOcultar` hides the buttons of the groups.
void NuevaActividad(Contexto& contexto, FDAPI::Conexion& conexion, bool blnOcultar = false,
                    cCOrigen origen = cCOrigen::PRINCIPAL);
void EditaActividad(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                    bool blnOcultar = false, cCOrigen origen = cCOrigen::PRINCIPAL);
void EliminaActividad(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);

/// `blnNuevaInstancia`: over another dialog that may be of the same kind.
void NuevoCargo(Contexto& contexto, FDAPI::Conexion& conexion, bool blnNuevaInstancia = false);
void EditaCargo(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);
void EliminaCargo(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id);

}  // namespace fidaleon::censo
