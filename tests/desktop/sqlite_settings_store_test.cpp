#include "Desktop/sqlite_settings_store.h"

#include <filesystem>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

#include "Desktop/files.h"
#include "Desktop/lazy_settings_store.h"
#include "Desktop/write_behind_store.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/recording_diagnostics.h"

namespace desktop {
namespace {

using tonelake::testing::RecordingDiagnostics;

using namespace std::string_literals;

class SqliteSettingsStoreTest : public testing::Test {
 protected:
  std::shared_ptr<SqliteSettingsStore> open(const std::string& path) {
    auto [store, problem] = SqliteSettingsStore::open(path, diagnostics);
    EXPECT_NE(store, nullptr) << problem;
    return store;
  }

  std::unique_ptr<SqliteDatabase> openPlainly(const std::string& path) {
    return SqliteDatabase::open(path, 1 << 30).database;
  }

  TemporaryFolder folder;
  std::string file = folder.path("test.sqlite");
  std::shared_ptr<RecordingDiagnostics> diagnostics = std::make_shared<RecordingDiagnostics>();
};

// What every store promises, whatever it is made of: a key has one value, of one type.
void expectContract(tonelake::SettingsStore& store) {
  for (const std::string& key : {"todayChordCategory"s, ""s, "ключ ♯"s, "with\0zero"s}) {
    const auto expectOnly = [&](const std::optional<std::string>& text,
                                const std::optional<std::string>& data,
                                std::optional<bool> boolean) {
      EXPECT_EQ(store.text(key), text) << key;
      EXPECT_EQ(store.data(key), data) << key;
      EXPECT_EQ(store.boolean(key), boolean) << key;
    };
    expectOnly({}, {}, {});
    store.remove(key);
    for (const std::string& value : {""s, "zero\0inside"s, "1"s, "\xff\xfe"s}) {
      store.setText(key, value);
      expectOnly(value, {}, {});
      store.setData(key, value);
      expectOnly({}, value, {});
    }
    for (const bool value : {true, false}) {
      store.setBoolean(key, value);
      expectOnly({}, {}, value);
    }
    store.remove(key);
    expectOnly({}, {}, {});
  }
  store.setData({}, {});  // views that point nowhere
  EXPECT_EQ(store.data(""), "");
}

TEST_F(SqliteSettingsStoreTest, KeepsWhatEveryStoreKeeps) {
  expectContract(*open(file));
  expectContract(*tonelake::makeMemorySettingsStore());
  expectContract(*makeLazySettingsStore(tonelake::makeMemorySettingsStore));
  expectContract(*makeWriteBehindStore(open(folder.path("behind.sqlite"))));
  EXPECT_EQ(diagnostics->lines(), std::vector<std::string>());
}

// Directly and behind the writers' backs.
TEST_F(SqliteSettingsStoreTest, ServesManyThreads) {
  constexpr int threadCount = 4;
  constexpr int writes = 100;
  const auto writeFromThreads = [](tonelake::SettingsStore& store) {
    std::vector<std::jthread> threads;
    threads.reserve(threadCount);
    for (int thread = 0; thread < threadCount; ++thread) {
      threads.emplace_back([&, thread] {
        for (int i = 0; i < writes; ++i) {
          const std::string key = std::to_string(thread) + "-" + std::to_string(i % 10);
          store.setData(key, std::to_string(i));
          EXPECT_EQ(store.data(key), std::to_string(i));
          if (i % 25 == 0) store.remove(key);
        }
      });
    }
  };
  writeFromThreads(*open(file));
  writeFromThreads(*makeWriteBehindStore(open(folder.path("behind.sqlite"))));
  for (const std::string& path : {file, folder.path("behind.sqlite")}) {
    const auto kept = open(path)->list().value;
    EXPECT_EQ(kept.size(), threadCount * 10U);
    for (const Setting& setting : kept) {
      EXPECT_EQ(setting.value, "9" + setting.key.substr(2)) << setting.key;
    }
  }
  EXPECT_EQ(diagnostics->lines(), std::vector<std::string>());
}

TEST_F(SqliteSettingsStoreTest, ListsAfterReopeningWhatWasWritten) {
  const std::vector<Setting> settings = {
      {"category", SettingType::text, "jazz"},       {"empty", SettingType::data, ""},
      {"left_handed", SettingType::boolean, "true"}, {"loud", SettingType::boolean, "false"},
      {"recent", SettingType::data, "[\0]"s},
  };
  for (const Setting& setting : settings) EXPECT_EQ(open(file)->write(setting), std::nullopt);
  EXPECT_EQ(open(file)->list().value, settings);
  EXPECT_EQ(open(file)->find("left_handed").value, settings[2]);
  EXPECT_EQ(open(file)->erase("recent"), std::nullopt);
  EXPECT_EQ(open(file)->list().value.size(), settings.size() - 1);
}

TEST_F(SqliteSettingsStoreTest, RefusesFilesThatAreNotItsOwn) {
  const auto run = [this](const std::string& name, const char* sql) {
    EXPECT_TRUE(openPlainly(folder.path(name))->execute(sql)) << name;
  };
  run("foreign", "CREATE TABLE songs(title)");
  run("newer", "PRAGMA user_version = 2");
  run("negative", "PRAGMA user_version = -1");
  folder.write("garbage", std::string(5000, '#'));
  std::filesystem::create_directory(folder.path("folder"));
  const std::pair<const char*, const char*> rows[] = {
      {"foreign", "not one of settings"},  {"newer", "newer version"},
      {"negative", "not one of settings"}, {"garbage", "not a database"},
      {"folder", "unable to open"},        {"missing/folder", "unable to open"},
  };
  for (const auto& [name, wanted] : rows) {
    const std::string path = folder.path(name);
    const auto before = readFile(path, 1 << 20);
    const auto [store, problem] = SqliteSettingsStore::open(path, diagnostics);
    EXPECT_EQ(store, nullptr) << name;
    EXPECT_TRUE(problem.starts_with(path + ": ")) << problem;
    EXPECT_NE(problem.find(wanted), std::string::npos) << problem;
    EXPECT_EQ(problem.find('\n'), std::string::npos) << problem;
    EXPECT_TRUE(readFile(path, 1 << 20) == before) << name << " was changed";
  }
}

// Whatever is damaged behind the first page, each call gives an answer, and there is one line.
TEST_F(SqliteSettingsStoreTest, SurvivesDamageFoundLate) {
  const Setting large{"large", SettingType::data, std::string(100'000, 'x')};
  open(file)->write(large);
  const std::string intact = readFile(file, 1 << 20).value();
  for (std::size_t from : {200u, 4000u, 4096u, 8192u, 20000u}) {
    std::string damaged = intact;
    for (std::size_t i = from; i < damaged.size(); ++i) damaged[i] = static_cast<char>(i * 7 + 1);
    const std::string path = folder.write("damaged-" + std::to_string(from), damaged);
    const auto lines = std::make_shared<RecordingDiagnostics>();
    const auto [store, problem] = SqliteSettingsStore::open(path, lines);
    EXPECT_TRUE(store != nullptr || problem.starts_with(path)) << problem;
    if (store == nullptr) continue;
    for (int i = 0; i < 3; ++i) {
      (void)store->data("large");
      (void)store->list();
      store->setText("a" + std::to_string(i), "b");
      store->remove("large");
    }
    EXPECT_LE(lines->lines().size(), 1u) << from;
  }
}

TEST_F(SqliteSettingsStoreTest, ReportsALostTableOnce) {
  const auto store = open(file);
  openPlainly(file)->execute("DROP TABLE settings");
  EXPECT_EQ(store->text("a"), std::nullopt);
  store->setText("a", "b");
  ASSERT_EQ(diagnostics->lines().size(), 1u);
  EXPECT_TRUE(diagnostics->lines()[0].starts_with(file + ": ")) << diagnostics->lines()[0];
  EXPECT_NE(store->write({"a", SettingType::text, "b"}), std::nullopt) << "told each time";
  EXPECT_NE(store->list().problem, std::nullopt);

  EXPECT_TRUE(
      openPlainly(file)->execute("CREATE TABLE settings(key TEXT PRIMARY KEY, type, value)"))
      << "a failed write keeps no lock";
  store->setText("a", "b");
  EXPECT_EQ(store->text("a"), "b");
}

TEST_F(SqliteSettingsStoreTest, RefusesSettingsOfMoreThanAMebibyte) {
  const auto store = open(file);
  const std::string longest(SqliteSettingsStore::longestSetting - 1, 'x');
  EXPECT_EQ(store->write({"a", SettingType::data, longest}), std::nullopt);
  const auto problem = store->write({"ab", SettingType::data, longest});
  ASSERT_NE(problem, std::nullopt);
  EXPECT_NE(problem->find("\"ab\""), std::string::npos) << *problem;

  openPlainly(file)->execute("INSERT INTO settings VALUES('huge', 'data', zeroblob(50000000))");
  EXPECT_EQ(store->data("huge"), std::nullopt);
  EXPECT_EQ(diagnostics->lines().size(), 1u);
  EXPECT_EQ(store->data("a"), longest) << "the others are still there";
}

TEST_F(SqliteSettingsStoreTest, ChoosesTheJournalOfNewFilesOnly) {
  const auto hasJournalFile = [this] { return std::filesystem::exists(file + "-wal"); };
  open(file)->setText("a", "b");
  openPlainly(file)->execute("PRAGMA journal_mode = DELETE");
  const auto reopened = open(file);
  reopened->setText("a", "c");
  EXPECT_FALSE(hasJournalFile());
  std::filesystem::remove(file);
  const auto fresh = open(file);
  fresh->setText("a", "b");
  EXPECT_TRUE(hasJournalFile());
}

// Each thread has a store of its own, as processes have.
TEST_F(SqliteSettingsStoreTest, LosesNoEditToAnother) {
  constexpr int threadCount = 4;
  constexpr int editsEach = 10;
  std::vector<std::jthread> threads;
  threads.reserve(threadCount);
  for (int thread = 0; thread < threadCount; ++thread) {
    threads.emplace_back([&] {
      const auto store = open(file);
      for (int i = 0; i < editsEach; ++i) {
        const auto addOne = [](const auto& data) { return data.value_or("") + 'x'; };
        EXPECT_EQ(store->editData("list", addOne), std::nullopt);
      }
    });
  }
  threads.clear();
  const auto store = open(file);
  EXPECT_EQ(store->data("list"), std::string(threadCount * editsEach, 'x'));

  const auto tooMuch = [](const auto&) {
    return std::string(SqliteSettingsStore::longestSetting, 'y');
  };
  EXPECT_NE(store->editData("list", tooMuch), std::nullopt);
  EXPECT_EQ(store->editData("list", [](const auto&) { return std::nullopt; }), std::nullopt);
  EXPECT_EQ(store->data("list"), std::string(threadCount * editsEach, 'x'));
}

}  // namespace
}  // namespace desktop
