#include "Tonelake/platform/embedded_resources.h"
#include "Tonelake/platform/resource_bundle.h"

namespace tonelake {
namespace {

class EmbeddedResourceBundle final : public ResourceBundle {
 public:
  std::optional<std::string> load(std::string_view name,
                                  std::string_view extension) const override {
    const std::string fileName = std::string(name).append(".").append(extension);
    return std::optional<std::string>(findResource(embeddedResources(), fileName));
  }
};

}  // namespace

std::shared_ptr<const ResourceBundle> makeEmbeddedResourceBundle() {
  return std::make_shared<EmbeddedResourceBundle>();
}

}  // namespace tonelake
