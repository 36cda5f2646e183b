#include "Desktop/settings_files.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <sys/stat.h>

#include "Desktop/environment.h"
#include "Desktop/lazy_settings_store.h"
#include "Desktop/translation.h"
#include "Desktop/write_behind_store.h"

namespace desktop {
namespace {

bool isAbsolute(const std::optional<std::string>& path) {
  return path && path->starts_with('/');
}

// Makes every folder on the way to `file` that is missing; false when one cannot be made. What
// stands in the way without being a folder is left for the opening to complain about.
bool makeFoldersFor(const std::string& file) {
  constexpr mode_t onlyThisUser = 0700;
  for (std::size_t end = file.find('/', 1); end != std::string::npos;
       end = file.find('/', end + 1)) {
    if (::mkdir(file.substr(0, end).c_str(), onlyThisUser) != 0 && errno != EEXIST) return false;
  }
  return true;
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
  if (!makeFoldersFor(file)) {
    return {nullptr, translated("{0}: cannot make its folder: {1}", file,
                                std::generic_category().message(errno))};
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
