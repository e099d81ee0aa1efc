#include "locks/ProcesarBloqueos.h"

#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "locks/LockTexts.h"
#include "text/Utf8.h"

namespace fidaleon::locks {

using FDAPI::DefinicionBloqueo;

namespace {

bool isStatement(const std::string& record) {
  constexpr std::string_view BEGINNING = "SELECT ";
  return record.size() > BEGINNING.size() &&
         text::equalsNoCase(text::left(text::trim(record), BEGINNING.size()), BEGINNING);
}

Kind kindOf(const DefinicionBloqueo& d) {
  if (d.blnBloqueoParcialTabla) return Kind::SharedTable;
  if (d.strRegistro.empty()) return Kind::Table;
  return d.blnBloqueoParcialRegistro ? Kind::SharedRecord : Kind::Record;
}

bool needsConnection(const DefinicionBloqueo& d) {
  return isStatement(d.strRegistro) || (d.blnComprobarExisteRegistro && !d.strRegistro.empty());
}

std::string existenceStatement(const DefinicionBloqueo& d) {
  const std::string sql = text::trim(d.strSQLExisteRegistro);
  if (sql.empty()) return isStatement(d.strRegistro) ? d.strRegistro : std::string();
  return sql.ends_with('=') && !isStatement(d.strRegistro) ? sql + d.strRegistro : sql;
}

/// The name by which a lock is given back: its table, or its table and what tells it apart.
bool goesBy(const std::string& name, const LockEntry& e) {
  return text::equalsNoCase(name, e.table) ||
         (e.counter != 0 && text::equalsNoCase(name, e.table + std::to_string(e.counter))) ||
         (!e.record.empty() && text::equalsNoCase(name, e.table + e.record));
}

}  // namespace

ProcesarBloqueos::ProcesarBloqueos(forms::UserInterface& ui, const Clock& clock, std::string user,
                                   std::string host)
    : ui_(ui), clock_(clock), user_(std::move(user)), host_(std::move(host)) {}

ProcesarBloqueos::~ProcesarBloqueos() {
  if (directory_) directory_->withdraw();
}

void ProcesarBloqueos::Inicializar(const std::string& strDirectorioTemporal) {
  LiberarBloqueos();
  directory_.emplace(strDirectorioTemporal);
}

void ProcesarBloqueos::DefinirBloqueo(DefinicionBloqueo definicion) {
  if (needsConnection(definicion) && !definicion.conBd)
    throw std::invalid_argument("Falta la conexión para bloquear " + oneOf(definicion.strTabla) +
                                ".");
  if (pendingRefused_) pending_.clear();
  pendingRefused_ = false;
  pending_.push_back(std::move(definicion));
}

void ProcesarBloqueos::AlRehusar(FDAPI::ErrorBloqueo error, const std::string& strConsecuencia) {
  consequences_[error] = strConsecuencia;
}

long ProcesarBloqueos::lngEfectuarBloqueos(bool blnSoloComprobar) {
  Outcome outcome;
  lastError_ = FDAPI::BloqueoSesion;  // stands if a statement of the definitions throws
  pendingRefused_ = true;
  try {
    outcome = attempt(blnSoloComprobar);
  } catch (const Unusable& e) {
    outcome = {FDAPI::BloqueoSesion, e.what(), {}};
  }
  consequences_.clear();
  lastError_ = outcome.error;
  lastHolder_ = outcome.holder;
  pendingRefused_ = outcome.error != FDAPI::BloqueoNinguno;
  if (!pendingRefused_ && !blnSoloComprobar) pending_.clear();
  if (pendingRefused_) forms::warn(ui_, outcome.message);
  return lastError_;
}

ProcesarBloqueos::Outcome ProcesarBloqueos::attempt(bool onlyTest) {
  if (!directory_) return {FDAPI::BloqueoSesion, "La sesión de bloqueos no se ha abierto.", {}};
  const SharedDirectory::Guard guard = directory_->enter();
  LockSet wanted;
  Outcome outcome = tryAll(guard, wanted);
  if (outcome.error == FDAPI::BloqueoNinguno && !onlyTest) keep(guard, wanted.release());
  return outcome;
}

// The statements run while nobody else can take or give back a lock: a record that exists here
// cannot have been deleted by a session that held it.
ProcesarBloqueos::Outcome ProcesarBloqueos::tryAll(const SharedDirectory::Guard& guard,
                                                   LockSet& wanted) {
  const Holder holder = self();
  for (const DefinicionBloqueo& d : pending_) {
    if (missing(d))
      return {FDAPI::BloqueoRegistroNoExiste,
              d.strNoExiste.empty() ? recordGone(d.strTabla) : d.strNoExiste,
              {}};
    for (LockEntry& e : resolve(d)) wanted.add({std::move(e), holder});
  }
  std::size_t first = wanted.all().size();  // of those wanted that cannot be had
  const HeldEntry* inTheWay = nullptr;
  const std::vector<HeldEntry> others = directory_->others(guard);
  for (const HeldEntry& other : others)
    if (const auto place = wanted.firstConflict(other.entry); place && *place < first) {
      first = *place;
      inTheWay = &other;
    }
  return inTheWay ? refused(wanted.all()[first].entry, *inTheWay) : Outcome{};
}

ProcesarBloqueos::Outcome ProcesarBloqueos::refused(const LockEntry& wanted,
                                                    const HeldEntry& held) const {
  const long error = errorFor(wanted.kind);
  const auto consequence = consequences_.find(error);
  return {error,
          consequence == consequences_.end() ? refusal(wanted, held, self())
                                             : refusal(wanted, held, self(), consequence->second),
          whoAndSince(held.holder, self())};
}

bool ProcesarBloqueos::missing(const DefinicionBloqueo& d) const {
  if (!d.blnComprobarExisteRegistro) return false;
  const std::string sql = existenceStatement(d);
  return !sql.empty() && d.conBd && d.conBd->Execute(sql).EOF_();
}

std::vector<LockEntry> ProcesarBloqueos::resolve(const DefinicionBloqueo& d) const {
  const Kind kind = kindOf(d);
  if (kind == Kind::Table || kind == Kind::SharedTable)
    return {{kind, d.strTabla, {}, d.lngContador}};
  if (!isStatement(d.strRegistro))
    return {{kind, d.strTabla, text::trim(d.strRegistro), d.lngContador}};
  std::vector<LockEntry> entries;
  for (store::Recordset rs = d.conBd->Execute(d.strRegistro); !rs.EOF_(); rs.MoveNext())
    entries.push_back({kind, d.strTabla, rs.Fields(0).Value().text(), d.lngContador});
  return entries;
}

bool ProcesarBloqueos::sharesRecord() const {
  const auto shared = [](Kind kind) { return kind == Kind::SharedRecord; };
  return std::any_of(pending_.begin(), pending_.end(),
                     [&](const DefinicionBloqueo& d) { return shared(kindOf(d)); }) ||
         std::any_of(held_.all().begin(), held_.all().end(),
                     [&](const HeldEntry& h) { return shared(h.entry.kind); });
}

long ProcesarBloqueos::errorFor(Kind kind) const {
  if (kind == Kind::Table) return FDAPI::BloqueoTabla;
  if (kind != Kind::Record) return FDAPI::BloqueoCompartido;
  return sharesRecord() ? FDAPI::BloqueoRegistroConPadres : FDAPI::BloqueoRegistro;
}

void ProcesarBloqueos::keep(const SharedDirectory::Guard& guard, std::vector<HeldEntry> wanted) {
  std::erase_if(wanted, [&](const HeldEntry& one) { return held_.contains(one.entry); });
  if (wanted.empty()) return;
  directory_->publishMore(guard, wanted);
  for (HeldEntry& one : wanted) held_.add(std::move(one));
}

Holder ProcesarBloqueos::self() const {
  return {user_, host_, ::getpid(), text::toShort(clock_.today()) + " a las " + clock_.now()};
}

void ProcesarBloqueos::LiberarBloqueo(const std::string& strTabla) {
  std::erase_if(pending_, [&](const DefinicionBloqueo& d) {
    return goesBy(strTabla, {kindOf(d), d.strTabla, d.strRegistro, d.lngContador});
  });
  std::vector<HeldEntry> kept = held_.release();
  const bool any =
      std::erase_if(kept, [&](const HeldEntry& held) { return goesBy(strTabla, held.entry); }) != 0;
  for (const HeldEntry& held : kept) held_.add(held);
  if (!any) return;
  if (kept.empty()) {
    directory_->withdraw();
    return;
  }
  try {
    directory_->publish(directory_->enter(), kept);
  } catch (const Unusable& e) {
    forms::warn(ui_, e.what());
  }
}

void ProcesarBloqueos::LiberarBloqueos() {
  pending_.clear();
  pendingRefused_ = false;
  held_.release();
  if (directory_) directory_->withdraw();
}

}  // namespace fidaleon::locks
