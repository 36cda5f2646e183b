#include "zyndle/rpc/request_ids.h"

#include <utility>

namespace zyndle {
namespace {

namespace json = tonelake::json;

// Goes through a message that is known to be sound and notes how the numbers that are ids are
// written, by the number of their request.
class NumberIdReader final : public nlohmann::json_sax<json::Value> {
 public:
  explicit NumberIdReader(bool isBatch) : requestDepth_(isBatch ? 2 : 1) {}

  bool null() override { return endValue(); }
  bool boolean(bool) override { return endValue(); }
  bool number_integer(number_integer_t) override { return endValue(); }
  bool number_unsigned(number_unsigned_t) override { return endValue(); }
  bool string(string_t&) override { return endValue(); }
  bool binary(binary_t&) override { return endValue(); }
  bool start_object(std::size_t) override { return open(); }
  bool start_array(std::size_t) override { return open(); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool number_float(number_float_t, const string_t& text) override {
    // Of several ids in one request the last one counts, as it does for its other keys.
    if (depth_ == requestDepth_ && isId_) texts_[request_] = text;
    return endValue();
  }

  bool key(string_t& name) override {
    isId_ = name == "id";
    return true;
  }

  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return false;
  }

  std::map<std::size_t, std::string> take() { return std::move(texts_); }

 private:
  bool open() {
    ++depth_;
    return true;
  }

  bool close() {
    --depth_;
    return endValue();
  }

  // Every element of a batch counts, requests or not.
  bool endValue() {
    if (depth_ == requestDepth_ - 1) ++request_;
    return true;
  }

  std::size_t requestDepth_;
  std::size_t depth_ = 0;
  std::size_t request_ = 0;
  bool isId_ = false;
  std::map<std::size_t, std::string> texts_;
};

}  // namespace

std::string RequestIds::write(const json::Value& id, std::size_t request) {
  if (!id.is_number_float()) return json::write(id);
  if (!numberTexts_) {
    NumberIdReader reader(isBatch_);
    json::Value::sax_parse(message_, &reader);
    numberTexts_ = reader.take();
  }
  return numberTexts_->at(request);
}

}  // namespace zyndle
