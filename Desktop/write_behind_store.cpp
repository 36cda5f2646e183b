#include "Desktop/write_behind_store.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

namespace desktop {
namespace {

class WriteBehindStore final : public tonelake::SettingsStore {
 public:
  explicit WriteBehindStore(std::shared_ptr<SqliteSettingsStore> store)
      : store_(std::move(store)) {}

  WriteBehindStore(const WriteBehindStore&) = delete;
  WriteBehindStore& operator=(const WriteBehindStore&) = delete;

  ~WriteBehindStore() override {
    {
      const std::lock_guard lock(mutex_);
      isEnding_ = true;
    }
    changed_.notify_all();
    if (writer_.joinable()) writer_.join();
  }

  std::optional<std::string> text(std::string_view key) const override {
    return isWaiting(key) ? std::nullopt : store_->text(key);
  }
  std::optional<bool> boolean(std::string_view key) const override {
    return isWaiting(key) ? std::nullopt : store_->boolean(key);
  }

  std::optional<std::string> data(std::string_view key) const override {
    {
      const std::lock_guard lock(mutex_);
      for (const Pieces* pieces : {&waiting_, &beingWritten_}) {
        if (const auto found = pieces->find(key); found != pieces->end()) return found->second;
      }
    }
    return store_->data(key);
  }

  void setText(std::string_view key, std::string_view value) override {
    forget(key);
    store_->setText(key, value);
  }
  void setBoolean(std::string_view key, bool value) override {
    forget(key);
    store_->setBoolean(key, value);
  }
  void remove(std::string_view key) override {
    forget(key);
    store_->remove(key);
  }

  void setData(std::string_view key, std::string_view value) override {
    {
      const std::lock_guard lock(mutex_);
      waiting_.insert_or_assign(std::string(key), std::string(value));
      // Most processes only read: the thread is made when there is something for it to do.
      if (!writer_.joinable()) writer_ = std::thread([this] { writeUntilEnd(); });
    }
    changed_.notify_all();
  }

 private:
  using Pieces = std::map<std::string, std::string, std::less<>>;

  bool isWaiting(std::string_view key) const {
    const std::lock_guard lock(mutex_);
    return waiting_.contains(key) || beingWritten_.contains(key);
  }

  // Nothing set earlier may be written over what comes now.
  void forget(std::string_view key) {
    std::unique_lock lock(mutex_);
    if (const auto found = waiting_.find(key); found != waiting_.end()) waiting_.erase(found);
    changed_.wait(lock, [&] { return !beingWritten_.contains(key); });
  }

  void writeUntilEnd() {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
      if (waiting_.empty()) return;
      beingWritten_ = std::exchange(waiting_, {});
      lock.unlock();
      store_->setAllData(beingWritten_);
      lock.lock();
      beingWritten_.clear();
      changed_.notify_all();
    }
  }

  const std::shared_ptr<SqliteSettingsStore> store_;
  mutable std::mutex mutex_;  // guards all that follows
  std::condition_variable changed_;
  Pieces waiting_;
  Pieces beingWritten_;  // changed by the writer only, so it may read it without the lock
  bool isEnding_ = false;
  std::thread writer_;
};

}  // namespace

std::shared_ptr<tonelake::SettingsStore> makeWriteBehindStore(
    std::shared_ptr<SqliteSettingsStore> store) {
  return std::make_shared<WriteBehindStore>(std::move(store));
}

}  // namespace desktop
