#include "parish/OpeningFault.h"

#include "locks/MeetingPlace.h"
#include "parish/copies/SafetyCopies.h"
#include "store/postgres/PostgresErrors.h"
#include "store/schema/Installer.h"

namespace fidaleon::app {
namespace {

using Kind = store::ErrorKind;

const std::vector<Remedy> WAIT{Remedy::Retry, Remedy::OtherFolder, Remedy::Exit};
const std::vector<Remedy> ELSEWHERE{Remedy::OtherFolder, Remedy::Retry, Remedy::Exit};

OpeningFault fault(const std::string& title, const std::string& text,
                   const std::vector<Remedy>& remedies) {
  return {title, text, remedies};
}

/// A parish that is gone may have left its copies.
std::vector<Remedy> whenMissing(const ParishFiles& files) {
  std::vector<Remedy> remedies{Remedy::Retry, Remedy::OtherFolder, Remedy::NewParish, Remedy::Exit};
  if (!SafetyCopies(files.directory).list().empty())
    remedies.insert(remedies.begin() + 1, Remedy::ReturnToCopy);
  return remedies;
}

std::string named(const ParishFiles& files) {
  return "«" + files.parish().string() + "»";
}

struct ServerFault {
  Kind kind;
  const char* title;
  const char* meaning;
};

constexpr const char* UNCHANGED = "Lo que está guardado en el servidor no ha cambiado.";

/// The last is for all others.
constexpr ServerFault SERVER_FAULTS[] = {
    {Kind::Missing, "En el servidor no está la parroquia",
     "Compruebe con quien lleva el servidor el nombre de la base de datos y el del usuario."},
    {Kind::ReadOnly, "El servidor no deja entrar a este usuario",
     "Pida a quien lleva el servidor que dé permiso a ese usuario. Si el programa es más nuevo que "
     "la parroquia, tiene que abrirla una vez el usuario que es dueño de la base de datos."},
    {Kind::NewerSchema, "La parroquia es de una versión más nueva",
     "Actualice el programa en este equipo para poder abrirla."},
    {Kind::NotADatabase, "La parroquia del servidor no puede abrirse", UNCHANGED},
    {Kind::Busy, "El servidor está ocupado", "Espere un momento y vuelva a intentarlo."},
    {Kind::Cancelled, "Ha dejado de esperar al servidor", UNCHANGED},
    {Kind::DiskFull, "El disco del servidor está lleno",
     "Avise a quien lleva el servidor. Lo que está guardado sigue a salvo."},
    {Kind::Other, "No se puede entrar en el servidor", UNCHANGED},
};

OpeningFault describeServerFault(const store::Error& error, const ParishFiles& files) {
  if (error.number() == store::kWrongPassword)
    return fault("El servidor pide la contraseña",
                 "No se ha entrado en el servidor porque falta la contraseña.",
                 {Remedy::Password, Remedy::Retry, Remedy::OtherFolder, Remedy::Exit});
  const ServerFault* known = SERVER_FAULTS;
  while (known->kind != error.kind() && known->kind != Kind::Other) ++known;
  return fault(known->title,
               std::string(error.what()) + "\n\n" + known->meaning +
                   "\n\nLa dirección del servidor está en " + named(files) + ".",
               WAIT);
}

}  // namespace

OpeningFault describeFault(const store::Error& error, const ParishFiles& files) {
  if (error.number() == store::kBeingUpgraded)
    return fault("Otro puesto está poniendo al día la parroquia", error.what(), WAIT);
  if (files.isOnServer()) return describeServerFault(error, files);
  const std::string file = named(files);
  switch (error.kind()) {
    case Kind::Missing:
      return fault("No se encuentra la parroquia",
                   "No existe el fichero " + file +
                       ".\n\nSi está en una carpeta compartida o en un disco externo, compruebe "
                       "que está conectado y vuelva a intentarlo.",
                   whenMissing(files));
    case Kind::Busy:
      return fault("La parroquia está ocupada",
                   "Otro programa tiene abierto el fichero " + file +
                       " (una copia de seguridad, por ejemplo).\n\nEspere a que termine y vuelva "
                       "a intentarlo. Los datos no han cambiado.",
                   WAIT);
    case Kind::NotADatabase:
      return fault(
          "El fichero no es una parroquia",
          "El fichero " + file +
              " está estropeado o no es una base de datos de Fidaleon. No se ha "
              "modificado.\n\nPuede volver a una copia de seguridad: el fichero estropeado se "
              "conservará con otro nombre. O elija otra carpeta.",
          {Remedy::ReturnToCopy, Remedy::OtherFolder, Remedy::Retry, Remedy::Exit});
    case Kind::NewerSchema:
      return fault("La parroquia es de una versión más nueva",
                   "El fichero " + file +
                       " se guardó con una versión más nueva de Fidaleon. No se ha modificado.\n\n"
                       "Actualice el programa en este equipo para poder abrirlo.",
                   ELSEWHERE);
    case Kind::ReadOnly:
      return fault("No se puede escribir en la parroquia",
                   "El fichero " + file +
                       " o su carpeta son de solo lectura, y lo que se anotara se perdería.\n\n"
                       "Pida permiso para escribir en esa carpeta, o elija otra.",
                   WAIT);
    case Kind::DiskFull:
      return fault("El disco está lleno",
                   "No queda sitio para trabajar con " + file +
                       ".\n\nLibere espacio en el disco y vuelva a intentarlo. Los datos "
                       "guardados están a salvo.",
                   WAIT);
    default:
      return fault("No se puede abrir la parroquia", file + "\n\n" + error.what(), WAIT);
  }
}

OpeningFault describeFault(const std::exception& error, const ParishFiles& files) {
  if (const auto* known = dynamic_cast<const store::Error*>(&error))
    return describeFault(*known, files);
  if (dynamic_cast<const locks::UnseenOther*>(&error))
    return fault("Ya hay otro equipo en la parroquia", error.what(),
                 {Remedy::Retry, Remedy::OtherIsOff, Remedy::OtherFolder, Remedy::Exit});
  return fault("No se puede abrir la parroquia", named(files) + "\n\n" + error.what(), WAIT);
}

std::string remedyName(Remedy remedy) {
  switch (remedy) {
    case Remedy::Retry:
      return "&Reintentar";
    case Remedy::Password:
      return "&Escribir la contraseña…";
    case Remedy::OtherIsOff:
      return "El otro equipo está &apagado…";
    case Remedy::ReturnToCopy:
      return "&Volver a una copia…";
    case Remedy::OtherFolder:
      return "&Otra carpeta…";
    case Remedy::NewParish:
      return "Crear una parroquia &nueva…";
    case Remedy::Exit:
      return "&Salir";
  }
  return {};
}

}  // namespace fidaleon::app
