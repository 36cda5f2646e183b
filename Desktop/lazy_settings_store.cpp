#include "Desktop/lazy_settings_store.h"

#include <mutex>
#include <utility>

namespace desktop {
namespace {

class LazySettingsStore final : public tonelake::SettingsStore {
 public:
  explicit LazySettingsStore(std::function<std::shared_ptr<tonelake::SettingsStore>()> open)
      : open_(std::move(open)) {}

  std::optional<std::string> text(std::string_view key) const override { return store().text(key); }
  std::optional<bool> boolean(std::string_view key) const override { return store().boolean(key); }
  std::optional<std::string> data(std::string_view key) const override { return store().data(key); }
  void setText(std::string_view key, std::string_view value) override {
    store().setText(key, value);
  }
  void setBoolean(std::string_view key, bool value) override { store().setBoolean(key, value); }
  void setData(std::string_view key, std::string_view value) override {
    store().setData(key, value);
  }
  void remove(std::string_view key) override { store().remove(key); }

 private:
  tonelake::SettingsStore& store() const {
    std::call_once(opened_, [this] { store_ = open_(); });
    return *store_;
  }

  const std::function<std::shared_ptr<tonelake::SettingsStore>()> open_;
  mutable std::once_flag opened_;
  mutable std::shared_ptr<tonelake::SettingsStore> store_;
};

}  // namespace

std::shared_ptr<tonelake::SettingsStore> makeLazySettingsStore(
    std::function<std::shared_ptr<tonelake::SettingsStore>()> open) {
  return std::make_shared<LazySettingsStore>(std::move(open));
}

}  // namespace desktop
