#include "app/SecretKeeper.h"

#include <libsecret/secret.h>

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <stop_token>
#include <thread>

#include "files/Durable.h"

namespace fidaleon::app {
namespace {

using store::ServerAddress;

constexpr std::chrono::seconds kMost{2};

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
  void operator()(GHashTable* table) const { g_hash_table_unref(table); }
  void operator()(SecretValue* value) const { secret_value_unref(value); }
  void operator()(GError* error) const { g_error_free(error); }
};
template <class Object>
using Held = std::unique_ptr<Object, Unref>;

/// Gives up what is under way when it has taken too long.
class Deadline {
 public:
  Deadline() : cancel_(g_cancellable_new()) {
    watch_ = std::jthread([this](const std::stop_token& ended) {
      std::mutex alone;
      std::unique_lock lock(alone);
      std::condition_variable_any asleep;
      asleep.wait_for(lock, ended, kMost, [] { return false; });
      if (!ended.stop_requested()) g_cancellable_cancel(cancel_.get());
    });
  }
  GCancellable* get() const { return cancel_.get(); }

 private:
  Held<GCancellable> cancel_;
  std::jthread watch_;
};

const SecretSchema& schemaOfPasswords() {
  static const SecretSchema schema = {"org.fidaleon.Servidor",
                                      SECRET_SCHEMA_NONE,
                                      {{"servidor", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                       {"puerto", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                       {"base", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                       {"usuario", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                       {nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING}}};
  return schema;
}

Held<GHashTable> attributesOf(const ServerAddress& address) {
  Held<GHashTable> all(g_hash_table_new_full(g_str_hash, g_str_equal, nullptr, g_free));
  const auto add = [&](const char* name, const std::string& value) {
    g_hash_table_insert(all.get(), const_cast<char*>(name), g_strdup(value.c_str()));
  };
  add("servidor", address.host);
  add("puerto", std::to_string(address.port));
  add("base", address.database);
  add("usuario", address.user);
  return all;
}

/// Without one the library would start one, or look for it for long.
bool hasSessionBus() {
  if (std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr) return true;
  const char* folder = std::getenv("XDG_RUNTIME_DIR");
  return folder != nullptr && files::isThere(std::filesystem::path(folder) / "bus");
}

/// The service of the session for one question.
class Secrets {
 public:
  Secrets() {
    static bool absent = !hasSessionBus();
    if (absent) return;
    GError* error = nullptr;
    service_.reset(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr,
                                            SECRET_SERVICE_OPEN_SESSION, deadline_.get(), &error));
    absent = failed(error);
  }
  bool isThere() const { return service_ != nullptr; }

  std::optional<std::string> find(const ServerAddress& address);
  bool keep(const ServerAddress& address, const std::string& password);
  void forget(const ServerAddress& address);

 private:
  static bool failed(GError* error) { return Held<GError>(error) != nullptr; }
  bool isOpen();

  Deadline deadline_;
  Held<SecretService> service_;
};

std::optional<std::string> Secrets::find(const ServerAddress& address) {
  GError* error = nullptr;
  GList* found =
      secret_service_search_sync(service_.get(), &schemaOfPasswords(), attributesOf(address).get(),
                                 SECRET_SEARCH_LOAD_SECRETS, deadline_.get(), &error);
  failed(error);
  std::optional<std::string> password;
  for (GList* at = found; at != nullptr && !password; at = at->next) {
    const Held<SecretValue> value(secret_item_get_secret(SECRET_ITEM(at->data)));
    const char* text = value ? secret_value_get_text(value.get()) : nullptr;
    if (text != nullptr) password = text;
  }
  g_list_free_full(found, g_object_unref);
  return password;
}

/// To store in a locked one would ask the user to open it.
bool Secrets::isOpen() {
  GError* error = nullptr;
  const Held<SecretCollection> usual(secret_collection_for_alias_sync(
      service_.get(), SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, deadline_.get(), &error));
  return !failed(error) && usual && secret_collection_get_locked(usual.get()) == FALSE;
}

bool Secrets::keep(const ServerAddress& address, const std::string& password) {
  if (!isOpen()) return false;
  GError* error = nullptr;
  const Held<SecretValue> value(
      secret_value_new(password.c_str(), static_cast<gssize>(password.size()), "text/plain"));
  const std::string label = "Fidaleon: " + address.user + ", " + address.shown();
  const bool kept =
      secret_service_store_sync(service_.get(), &schemaOfPasswords(), attributesOf(address).get(),
                                SECRET_COLLECTION_DEFAULT, label.c_str(), value.get(),
                                deadline_.get(), &error) != FALSE;
  return !failed(error) && kept;
}

void Secrets::forget(const ServerAddress& address) {
  GError* error = nullptr;
  secret_service_clear_sync(service_.get(), &schemaOfPasswords(), attributesOf(address).get(),
                            deadline_.get(), &error);
  failed(error);
}

/// What tells one password from another.
std::string keyOf(ServerAddress address) {
  address.rootCertificate.clear();
  return address.written();
}

}  // namespace

SecretKeeper::SecretKeeper(std::unique_ptr<store::PasswordKeeper> otherwise)
    : otherwise_(std::move(otherwise)) {}

std::optional<std::string> SecretKeeper::find(const ServerAddress& address) {
  const std::lock_guard guard(alone_);
  if (const auto known = known_.find(keyOf(address)); known != known_.end()) return known->second;
  Secrets secrets;
  auto password = secrets.isThere() ? secrets.find(address) : std::nullopt;
  if (!password) password = otherwise_->find(address);
  if (password) known_[keyOf(address)] = *password;
  return password;
}

void SecretKeeper::keep(const ServerAddress& address, const std::string& password) {
  const std::lock_guard guard(alone_);
  known_[keyOf(address)] = password;
  Secrets secrets;
  if (secrets.isThere() && secrets.keep(address, password))
    otherwise_->forget(address);
  else
    otherwise_->keep(address, password);
}

void SecretKeeper::forget(const ServerAddress& address) {
  const std::lock_guard guard(alone_);
  known_.erase(keyOf(address));
  if (Secrets secrets; secrets.isThere()) secrets.forget(address);
  otherwise_->forget(address);
}

}  // namespace fidaleon::app
