#include <map>
#include <mutex>
#include <variant>

#include "Tonelake/platform/settings_store.h"

namespace tonelake {
namespace {

struct Data {
  std::string bytes;
};
using Setting = std::variant<std::string, bool, Data>;

class MemorySettingsStore final : public SettingsStore {
 public:
  std::optional<std::string> text(std::string_view key) const override {
    return get<std::string>(key);
  }
  std::optional<bool> boolean(std::string_view key) const override { return get<bool>(key); }
  std::optional<std::string> data(std::string_view key) const override {
    auto found = get<Data>(key);
    if (!found) return std::nullopt;
    return std::move(found->bytes);
  }

  void setText(std::string_view key, std::string_view value) override {
    set(key, std::string(value));
  }
  void setBoolean(std::string_view key, bool value) override { set(key, value); }
  void setData(std::string_view key, std::string_view value) override {
    set(key, Data{std::string(value)});
  }

  void remove(std::string_view key) override {
    const std::lock_guard lock(mutex_);
    if (const auto found = settings_.find(key); found != settings_.end()) settings_.erase(found);
  }

 private:
  template <typename Value>
  std::optional<Value> get(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    const auto found = settings_.find(key);
    if (found == settings_.end()) return std::nullopt;
    const Value* value = std::get_if<Value>(&found->second);
    return value != nullptr ? std::optional<Value>(*value) : std::nullopt;
  }

  void set(std::string_view key, Setting value) {
    const std::lock_guard lock(mutex_);
    settings_.insert_or_assign(std::string(key), std::move(value));
  }

  mutable std::mutex mutex_;
  std::map<std::string, Setting, std::less<>> settings_;
};

}  // namespace

std::shared_ptr<SettingsStore> makeMemorySettingsStore() {
  return std::make_shared<MemorySettingsStore>();
}

}  // namespace tonelake
