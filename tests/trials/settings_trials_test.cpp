// What can happen to the settings files from outside: several processes at once, processes that
// are killed, folders without permission, disks that are full. Each trial runs real processes.

#include <csignal>
#include <functional>
#include <random>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Desktop/settings_files.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/recording_diagnostics.h"

namespace desktop {
namespace {

using tonelake::testing::RecordingDiagnostics;

// Runs `work` in a process of its own, whose exit status is what `work` returns.
pid_t start(const std::function<int()>& work) {
  const pid_t process = ::fork();
  if (process == 0) ::_exit(work());
  return process;
}

// The exit status, or minus the number of the signal that ended the process.
int waitFor(pid_t process) {
  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string keyOf(int process, int number) {
  return std::to_string(process) + '-' + std::to_string(number);
}

std::shared_ptr<SqliteSettingsStore> openStore(const std::string& file) {
  auto [store, problem] = openSettingsFile(file, std::make_shared<RecordingDiagnostics>());
  EXPECT_NE(store, nullptr) << problem;
  return store;
}

struct WriterResult {
  int status;
  int acknowledged;
};

// Runs `work` in a process that tells over a pipe how many of its writes were acknowledged, and
// is killed, unless that is 0, as soon as it has told of `killedAfter`.
WriterResult runWriter(int killedAfter, const std::function<int(int channel)>& work) {
  int channel[2];
  if (::pipe(channel) != 0) std::abort();
  const pid_t process = start([&] { return work(channel[1]); });
  ::close(channel[1]);
  int count = 0;
  while (::read(channel[0], &count, sizeof count) == sizeof count) {
    if (count == killedAfter) ::kill(process, SIGKILL);
  }
  ::close(channel[0]);
  return {waitFor(process), count};
}

// Writes one setting after the other until one fails; false when nobody listens.
bool writeAndTell(SqliteSettingsStore& store, int writes, int channel) {
  for (int i = 0; i < writes; ++i) {
    if (store.write({keyOf(0, i), SettingType::data, std::string(3000, 'x')})) break;
    const int count = i + 1;
    if (::write(channel, &count, sizeof count) != sizeof count) return false;
  }
  return true;
}

void expectKept(const std::string& file, int count) {
  const auto store = openStore(file);
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(store->data(keyOf(0, i)), std::string(3000, 'x')) << i << " of " << count;
  }
  EXPECT_EQ(store->write({"after", SettingType::text, "all"}), std::nullopt);
}

TEST(SettingsTrials, SeveralProcessesWriteAtOnceWithoutLoss) {
  constexpr int processCount = 4;
  constexpr int writesEach = 15;
  for (int round = 0; round < 2; ++round) {
    const TemporaryFolder folder;
    // All of them make the folder and the file, too.
    const std::string file = folder.path("new/folder/shared.sqlite");
    std::vector<pid_t> processes;
    processes.reserve(processCount);
    for (int process = 0; process < processCount; ++process) {
      processes.push_back(start([&, process] {
        std::shared_ptr<SqliteSettingsStore> store;
        for (int i = 0; i < writesEach; ++i) {
          // The last one to close a file tidies it up, which is a risk of its own.
          store.reset();
          store = openStore(file);
          if (store == nullptr) return 1;
          const Setting setting{keyOf(process, i), SettingType::data, std::string(2000, 'x')};
          if (store->write(setting) || store->write({"same", SettingType::text, setting.key})) {
            return 2;
          }
          if (store->find(setting.key).value != setting) return 3;
        }
        return 0;
      }));
    }
    for (const pid_t process : processes) EXPECT_EQ(waitFor(process), 0);
    EXPECT_EQ(openStore(file)->list().value.size(),
              static_cast<std::size_t>(processCount * writesEach + 1));
  }
}

TEST(SettingsTrials, AKilledProcessLosesNothingThatWasAcknowledged) {
  constexpr int writes = 200;
  std::mt19937 random(9);
  for (int round = 0; round < 8; ++round) {
    const TemporaryFolder folder;
    const std::string file = folder.path("standard.sqlite");
    const int killedAfter = std::uniform_int_distribution(1, writes)(random);
    const WriterResult result = runWriter(killedAfter, [&](int channel) {
      writeAndTell(*openStore(file), writes, channel);
      ::pause();
      return 0;
    });
    EXPECT_EQ(result.status, -SIGKILL);
    EXPECT_GE(result.acknowledged, killedAfter);
    expectKept(file, result.acknowledged);
  }
}

// Permissions do not bind the superuser, who becomes someone else for the trial.
void giveUpPrivileges() {
  constexpr uid_t nobody = 65534;
  if (::geteuid() == 0 && ::setresuid(nobody, nobody, nobody) != 0) ::_exit(99);
}

TEST(SettingsTrials, WithoutPermission) {
  struct Row {
    const char* what;
    mode_t folderMode;
    mode_t fileMode;
    bool hasFile;
  };
  const Row rows[] = {
      {"a folder for reading only", 0555, 0, false},
      {"a closed folder", 0000, 0, false},
      {"a file that nobody may read", 0777, 0000, true},
      {"a file for reading only, in a folder for reading only", 0555, 0444, true},
  };
  for (const Row& row : rows) {
    const TemporaryFolder folder;
    const std::string file = folder.path("inner/standard.sqlite");
    ::mkdir(folder.path("inner").c_str(), 0755);
    ::chmod(folder.path().c_str(), 0755);
    if (row.hasFile) {
      openStore(file)->setText("a", "b");
      ::chmod(file.c_str(), row.fileMode);
    }
    ::chmod(folder.path("inner").c_str(), row.folderMode);
    const int result = waitFor(start([&] {
      giveUpPrivileges();
      const auto diagnostics = std::make_shared<RecordingDiagnostics>();
      const auto standard = makeStandardSettings(file, diagnostics);
      for (int i = 0; i < 3; ++i) standard->setText(keyOf(0, i), "x");
      if (diagnostics->lines().size() != 1) return 1;
      if (!diagnostics->lines()[0].starts_with(file)) return 2;
      return openSettingsFile(file, diagnostics).store != nullptr ? 3 : 0;
    }));
    ::chmod(folder.path("inner").c_str(), 0755);
    EXPECT_EQ(result, 0) << row.what;
  }
}

// A limit on the size of files is as good as a full disk: writes fail half-way.
TEST(SettingsTrials, OnAFullDisk) {
  for (const rlim_t limit : {0u, 4096u, 20'000u, 100'000u, 300'000u}) {
    const TemporaryFolder folder;
    const std::string file = folder.path("standard.sqlite");
    const WriterResult result = runWriter(0, [&](int channel) {
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit small{limit, limit};
      ::setrlimit(RLIMIT_FSIZE, &small);
      const auto diagnostics = std::make_shared<RecordingDiagnostics>();
      const auto [store, problem] = openSettingsFile(file, diagnostics);
      if (store == nullptr) return problem.starts_with(file) ? 0 : 1;
      if (!writeAndTell(*store, 200, channel)) return 2;
      // What was kept is still there, and what cannot be kept is reported once.
      for (int i = 0; i < 3; ++i) store->setData("large", std::string(400'000, 'x'));
      if (store->data("large").has_value()) return 3;
      return diagnostics->lines().size() == 1 ? 0 : 4;
    });
    EXPECT_EQ(result.status, 0) << "limit " << limit;
    expectKept(file, result.acknowledged);  // room again
  }
}

}  // namespace
}  // namespace desktop
