#include "Desktop/settings_files.h"

#include <filesystem>
#include <utility>

#include "Desktop/environment.h"
#include "Desktop/files.h"
#include "Desktop/lazy_settings_store.h"
#include "Desktop/translation.h"
#include "Desktop/write_behind_store.h"

namespace desktop {
namespace {

bool isAbsolute(const std::optional<std::string>& path) {
  return path && path->starts_with('/');
}

}  // namespace

DataHome dataHomeOfThisUser() {
  return {environmentVariable("XDG_DATA_HOME"), environmentVariable("HOME")};
}

SettingsFiles settingsFiles(const DataHome& home) {
  std::string folder;
  if (isAbsolute(home.variable)) {
    folder = *home.variable + "/zyndle/";
  } else if (isAbsolute(home.home)) {
    folder = *home.home + "/.local/share/zyndle/";
  }
  return {folder + "shared.sqlite", folder + "standard.sqlite"};
}

SqliteSettingsStore::Opening openSettingsFile(const std::string& file,
                                              std::shared_ptr<tonelake::Diagnostics> diagnostics) {
  if (!isAbsolute(file)) {
    return {nullptr,
            translated("{}: neither XDG_DATA_HOME nor HOME says which folder it belongs to", file)};
  }
  constexpr mode_t onlyThisUser = 0700;
  if (const auto problem = makeFolder(std::filesystem::path(file).parent_path(), onlyThisUser)) {
    return {nullptr, file + ": " + *problem};
  }
  return SqliteSettingsStore::open(file, std::move(diagnostics));
}

std::shared_ptr<tonelake::SettingsStore> makeStandardSettings(
    const std::string& file, const std::shared_ptr<tonelake::Diagnostics>& diagnostics) {
  return makeLazySettingsStore([file, diagnostics]() -> std::shared_ptr<tonelake::SettingsStore> {
    auto [store, problem] = openSettingsFile(file, diagnostics);
    if (store != nullptr) return makeWriteBehindStore(std::move(store));
    diagnostics->write(translated("{}; generated positions are not kept", problem));
    return tonelake::makeMemorySettingsStore();
  });
}

std::shared_ptr<tonelake::SettingsStore> makeSharedSettings(
    const std::string& file, const std::shared_ptr<tonelake::Diagnostics>& diagnostics,
    const std::function<void(const std::string& problem)>& onProblem) {
  return makeLazySettingsStore(
      [file, diagnostics, onProblem]() -> std::shared_ptr<tonelake::SettingsStore> {
        auto [store, problem] = openSettingsFile(file, diagnostics);
        if (store != nullptr) return store;
        onProblem(problem);
        return tonelake::makeMemorySettingsStore();
      });
}

}  // namespace desktop
