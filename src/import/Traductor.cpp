#include "import/Traductor.h"

#include <algorithm>
#include <cmath>

#include "core/statements/Citas.h"
#include "import/Siglo.h"
#include "import/TablaInpar.h"
#include "text/Names.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr const char* BLANCO = "---";
constexpr std::size_t kNombre = 40;  // characters of each part of a full name
constexpr std::size_t kParroquia = 50, kDiocesis = 30;
constexpr int kLineas = 20;

std::vector<std::string> separadas(const std::string& nombres) {
  std::vector<std::string> todas;
  for (std::size_t i = 0; i < nombres.size();) {
    const std::size_t fin = std::min(nombres.find(' ', i), nombres.size());
    todas.push_back(nombres.substr(i, fin - i));
    i = fin + 1;
  }
  return todas;
}

std::vector<std::size_t> presentes(const std::string& nombres, const Traductor::Buscar& buscar) {
  std::vector<std::size_t> columnas;
  for (const std::string& nombre : separadas(nombres))
    if (const auto columna = buscar(nombre)) columnas.push_back(*columna);
  return columnas;
}

std::string fuentesDe(const Destino& destino) {
  if (destino.origen == Origen::Lineas) {
    std::string todas;
    for (int i = 1; i <= kLineas; ++i) todas += "Linea" + std::to_string(i) + " ";
    return todas;
  }
  return destino.fuente.empty() ? destino.columna : destino.fuente;
}

bool esNombre(Origen origen) {
  return origen == Origen::Nombre || origen == Origen::Apellido1 || origen == Origen::Apellido2;
}

std::size_t limiteDe(const Destino& destino, const store::Column& columna) {
  std::size_t limite = columna.type == store::Type::Memo ? std::string::npos
                                                         : static_cast<std::size_t>(columna.width);
  if (esNombre(destino.origen)) limite = std::min(limite, kNombre);
  if (destino.limite > 0) limite = std::min(limite, static_cast<std::size_t>(destino.limite));
  return limite;
}

std::string unaFuente(const std::vector<std::size_t>& columnas, const dbase::Row& fila) {
  return columnas.empty() ? std::string() : textoDe(fila[columnas[0]]);
}

std::string unidas(const std::vector<std::size_t>& columnas, const dbase::Row& fila) {
  std::string todo;
  for (const std::size_t columna : columnas) {
    const std::string parte = textoDe(fila[columna]);
    if (!parte.empty()) todo += (todo.empty() ? "" : " ") + parte;
  }
  return todo;
}

std::string sexoDe(const std::string& letra) {
  return letra == "H" ? "Hombre" : letra == "M" ? "Mujer" : "";
}

}  // namespace

std::string textoDe(const dbase::Cell& celda) {
  using Kind = dbase::Cell::Kind;
  if (esDia(celda)) return text::toShort(celda.date);
  if (celda.kind == Kind::Real) return escrito(store::Value(celda.real));
  if (celda.kind == Kind::Logical) return celda.integer != 0 ? "Sí" : "No";
  return text::trim(celda.text);
}

Traductor::Traductor(const TablaDestino& tabla, const store::Schema& esquema, const Buscar& buscar,
                     const Reglas& reglas, Lugares& lugares, RegistroImportado& resultado)
    : tabla_(tabla), reglas_(reglas), lugares_(lugares), resultado_(resultado) {
  cabeza_ = "INSERT INTO " + tabla.tabla + " (";
  for (const Destino& destino : tabla.columnas) {
    const store::Column* columna = esquema.find(tabla.tabla)->find(destino.columna);
    pasos_.push_back({&destino, columna, limiteDe(destino, *columna),
                      presentes(fuentesDe(destino), buscar), presentes(destino.otra, buscar)});
    cabeza_ += (pasos_.size() > 1 ? ", " : "") + destino.columna;
  }
  cabeza_ += ") VALUES (";
}

const std::string& Traductor::sentencia(const dbase::Row& fila, const ClavesPartida& claves,
                                        std::int64_t falta) {
  sql_ = cabeza_;
  for (const Paso& paso : pasos_) {
    if (&paso != &pasos_.front()) sql_ += ", ";
    valor(paso, fila, claves, falta);
  }
  sql_ += ')';
  return sql_;
}

bool Traductor::tieneA(const ClavesPartida& claves) const {
  return std::all_of(tabla_.columnas.begin(), tabla_.columnas.end(), [&](const Destino& destino) {
    return destino.origen != Origen::Llave || claves[static_cast<std::size_t>(destino.clave)] != 0;
  });
}

void Traductor::valor(const Paso& paso, const dbase::Row& fila, const ClavesPartida& claves,
                      std::int64_t falta) {
  const DatosRegistro& datos = reglas_.datos;
  const auto dado = [&](const std::string& dicho, std::size_t limite) {
    texto(paso, fila, datos.usar ? text::left(text::trim(dicho), limite) : std::string());
  };
  switch (paso.destino->origen) {
    case Origen::Texto:
    case Origen::Valor:
      if (store::isText(paso.columna->type))
        return texto(paso, fila, unaFuente(paso.fuentes, fila));
      return numero(paso, fila);
    case Origen::Fecha:
      return fecha(paso, fila);
    case Origen::Falta: {
      const std::string nombre = unaFuente(paso.fuentes, fila);
      return texto(paso, fila, nombre.empty() ? "Falta " + std::to_string(falta) : nombre);
    }
    case Origen::Nombre:
    case Origen::Apellido1:
    case Origen::Apellido2:
      return nombre(paso, fila);
    case Origen::Union:
      return texto(paso, fila, unidas(paso.fuentes, fila));
    case Origen::Lugar:
    case Origen::LugarSuelto:
      return lugar(paso, fila);
    case Origen::Edad:
      return edad(paso, fila);
    case Origen::Sexo:
      return citarEn(sql_, sexoDe(unaFuente(paso.fuentes, fila)));
    case Origen::Lineas:
      return texto(paso, fila, lineas(paso, fila));
    case Origen::Parroquia:
      return dado(datos.parroquia, kParroquia);
    case Origen::ParroquiaO:
      if (!datos.usar) return texto(paso, fila, unaFuente(paso.fuentes, fila));
      return dado(datos.parroquia, kParroquia);
    case Origen::Diocesis:
      return dado(datos.diocesis, kDiocesis);
    case Origen::Municipio:
      sql_ += std::to_string(datos.usar ? datos.municipio : 0);
      return;
    case Origen::Llave:
      sql_ += std::to_string(claves[static_cast<std::size_t>(paso.destino->clave)]);
      return;
    case Origen::Cero:
    case Origen::Uno:
      sql_ += paso.destino->origen == Origen::Cero ? '0' : '1';
      return;
    case Origen::No:
      sql_ += "False";
      return;
  }
}

void Traductor::texto(const Paso& paso, const dbase::Row& fila, std::string valor) {
  if (text::trim(valor).empty()) return citarEn(sql_, BLANCO);
  if (valor.find('"') != std::string::npos) valor = text::withoutQuotes(valor);
  // A text of so many bytes has no more characters.
  if (valor.size() > paso.limite && text::length(valor) > paso.limite) {
    ++resultado_.cortados;
    anotar(fila, paso, "no cabe entero: «" + valor + "»");
    valor = text::left(valor, paso.limite);
  }
  citarEn(sql_, valor);
}

void Traductor::numero(const Paso& paso, const dbase::Row& fila) {
  const std::string escrito = unaFuente(paso.fuentes, fila);
  const double valor = std::trunc(text::Val(escrito));
  const bool dia = !paso.fuentes.empty() && esDia(fila[paso.fuentes[0]]);
  const bool cabe = dia                                       ? false
                    : paso.columna->type == store::Type::Byte ? valor >= 0 && valor <= 255
                                                              : std::abs(valor) <= 2147483647.0;
  if (!cabe || (!escrito.empty() && escrito != BLANCO && !text::isNumeric(escrito)))
    anotar(fila, paso, "solo admite números: «" + escrito + "»");
  sql_ += std::to_string(cabe ? static_cast<std::int64_t>(valor) : 0);
}

void Traductor::fecha(const Paso& paso, const dbase::Row& fila) {
  if (paso.fuentes.empty()) return citarEn(sql_, BLANCO);
  const dbase::Cell& celda = fila[paso.fuentes[0]];
  const auto dia = diaDe(celda);
  if (!dia) return texto(paso, fila, textoDe(celda));
  const std::string puesta = conSiglo(*dia, reglas_.strAno00);
  if (puesta != text::toStored(*dia)) {
    const auto leida = text::parseStored(puesta);
    ++resultado_.siglos;
    anotar(fila, paso,
           "la fecha " + text::toShort(*dia) + " queda como " +
               (leida ? text::toShort(*leida) : puesta));
  }
  citarEn(sql_, puesta);
}

void Traductor::edad(const Paso& paso, const dbase::Row& fila) {
  const auto anoDe = [&](const std::vector<std::size_t>& columnas) -> std::optional<int> {
    const auto dia = columnas.empty() ? std::nullopt : diaDe(fila[columnas[0]]);
    if (!dia) return std::nullopt;
    const auto puesto = text::parseStored(conSiglo(*dia, reglas_.strAno00));
    return puesto ? std::optional(puesto->year) : std::nullopt;
  };
  const auto nacido = anoDe(paso.fuentes), despues = anoDe(paso.otras);
  citarEn(sql_, nacido && despues ? std::to_string(std::max(*despues - *nacido, 0)) : BLANCO);
}

void Traductor::lugar(const Paso& paso, const dbase::Row& fila) {
  const std::string provincia = paso.destino->origen == Origen::LugarSuelto
                                    ? "INPAR - OTRAS"
                                    : text::withoutQuotes(unaFuente(paso.otras, fila));
  const std::string poblacion = text::withoutQuotes(unaFuente(paso.fuentes, fila));
  const auto clave = lugares_.municipio(poblacion, provincia);
  if (!clave) anotar(fila, paso, "no se ha podido hacer: «" + poblacion + "», de " + provincia);
  sql_ += std::to_string(clave.value_or(0));
}

void Traductor::nombre(const Paso& paso, const dbase::Row& fila) {
  std::string completo = unaFuente(paso.fuentes, fila);
  if (paso.destino->origen == Origen::Nombre) {
    nombre_ = separarNombre(completo, reglas_.bytOrdenNombre);
    if (nombre_.incompleto) {
      ++resultado_.sinSeparar;
      anotar(fila, paso, "no se separa del todo: «" + completo + "»");
    }
    textoNombre_ = std::move(completo);
  }
  texto(paso, fila,
        paso.destino->origen == Origen::Nombre      ? nombre_.nombre
        : paso.destino->origen == Origen::Apellido1 ? nombre_.apellido1
                                                    : nombre_.apellido2);
}

/// Each line ends in CR LF, and the very last character is cut. Blank lines behind the last one
/// that says something would be blank on the paper.
std::string Traductor::lineas(const Paso& paso, const dbase::Row& fila) const {
  std::string todas;
  std::size_t dichas = 0;
  for (const std::size_t columna : paso.fuentes) {
    const std::string una = textoDe(fila[columna]);
    todas += una + "\r\n";
    if (!una.empty()) dichas = todas.size() - 1;
  }
  return todas.substr(0, dichas);
}

void Traductor::anotar(const dbase::Row& fila, const Paso& paso, const std::string& que) {
  resultado_.anotar(
      {fila.record(), tabla_.tabla + "." + paso.destino->columna + ": " + que, false});
}

}  // namespace fidaleon
