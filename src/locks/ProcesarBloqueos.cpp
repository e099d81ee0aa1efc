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
                                   std::string host, Meet meet)
    : ui_(ui),
      clock_(clock),
      user_(std::move(user)),
      host_(std::move(host)),
      meet_(std::move(meet)) {}

void ProcesarBloqueos::Inicializar(const std::string& strDirectorioTemporal) {
  LiberarBloqueos();
  meeting_ = meet_(strDirectorioTemporal);
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
  if (!meeting_) return {FDAPI::BloqueoSesion, "La sesión de bloqueos no se ha abierto.", {}};
  LockSet taken;
  const auto isNew = [&taken](const LockEntry& entry) { return taken.contains(entry); };
  try {
    Outcome outcome = tryAll(onlyTest, taken);
    if (outcome.error != FDAPI::BloqueoNinguno) giveBack(isNew);
    return outcome;
  } catch (...) {
    giveBack(isNew);
    throw;
  }
}

// What was looked up before the locks were held is looked up again under them: a record that exists
// then cannot be deleted any more, and one that has come to the rest is taken as well. Nobody is
// kept waiting while the statements run.
ProcesarBloqueos::Outcome ProcesarBloqueos::tryAll(bool onlyTest, LockSet& taken) {
  LockSet wanted;
  while (extend(wanted)) {
    const auto clash = onlyTest ? meeting_->clash(wanted) : take(wanted, taken);
    if (clash) {
      Outcome gone = whatIsGone();
      return gone.error == FDAPI::BloqueoNinguno ? refused(*clash) : gone;
    }
    if (onlyTest) break;
  }
  return whatIsGone();
}

std::optional<MeetingPlace::Clash> ProcesarBloqueos::take(const LockSet& wanted, LockSet& taken) {
  std::vector<HeldEntry> more;
  std::ranges::copy_if(wanted.all(), std::back_inserter(more),
                       [&](const HeldEntry& one) { return !held_.contains(one.entry); });
  auto clash = meeting_->take(wanted, more);
  if (clash) return clash;
  for (HeldEntry& one : more) {
    taken.add(one);
    held_.add(std::move(one));
  }
  return std::nullopt;
}

/// Adds what the definitions mean by now; false when all of that was there.
bool ProcesarBloqueos::extend(LockSet& wanted) const {
  const std::size_t before = wanted.all().size();
  const Holder holder = self();
  for (const DefinicionBloqueo& d : pending_)
    if (before == 0 || isStatement(d.strRegistro))
      for (LockEntry& e : resolve(d)) wanted.add({std::move(e), holder});
  return wanted.all().size() != before;
}

ProcesarBloqueos::Outcome ProcesarBloqueos::whatIsGone() const {
  for (const DefinicionBloqueo& d : pending_)
    if (missing(d))
      return {FDAPI::BloqueoRegistroNoExiste,
              d.strNoExiste.empty() ? recordGone(d.strTabla) : d.strNoExiste,
              {}};
  return {};
}

ProcesarBloqueos::Outcome ProcesarBloqueos::refused(const MeetingPlace::Clash& clash) const {
  const long error = errorFor(clash.wanted.kind);
  const auto consequence = consequences_.find(error);
  return {error,
          consequence == consequences_.end()
              ? refusal(clash.wanted, clash.held, self())
              : refusal(clash.wanted, clash.held, self(), consequence->second),
          whoAndSince(clash.held.holder, self())};
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

Holder ProcesarBloqueos::self() const {
  return {user_, host_, ::getpid(), text::toShort(clock_.today()) + " a las " + clock_.now()};
}

void ProcesarBloqueos::LiberarBloqueo(const std::string& strTabla) {
  std::erase_if(pending_, [&](const DefinicionBloqueo& d) {
    return goesBy(strTabla, {kindOf(d), d.strTabla, d.strRegistro, d.lngContador});
  });
  try {
    giveBack([&](const LockEntry& entry) { return goesBy(strTabla, entry); });
  } catch (const Unusable& e) {
    forms::warn(ui_, e.what());
  }
}

void ProcesarBloqueos::giveBack(const std::function<bool(const LockEntry&)>& which) {
  if (std::ranges::none_of(held_.all(), [&](const HeldEntry& h) { return which(h.entry); })) return;
  std::vector<HeldEntry> kept = held_.release();
  std::erase_if(kept, [&](const HeldEntry& held) { return which(held.entry); });
  for (const HeldEntry& held : kept) held_.add(held);
  kept.empty() ? meeting_->withdraw() : meeting_->publish(kept);
}

void ProcesarBloqueos::LiberarBloqueos() {
  pending_.clear();
  pendingRefused_ = false;
  held_.release();
  if (meeting_) meeting_->withdraw();
}

}  // namespace fidaleon::locks
