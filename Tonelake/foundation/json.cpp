#include "Tonelake/foundation/json.h"

#include <utility>
#include <vector>

namespace tonelake::json {
namespace {

// Builds the document from the parser's events and stops at the first value that lies too deep.
// The parser itself keeps its own stack on the heap, so reading deep text is safe; the finished
// value would not be.
class DocumentBuilder final : public nlohmann::json_sax<Value> {
 public:
  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override { return add(value); }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  bool string(string_t& value) override { return add(std::move(value)); }
  bool binary(binary_t&) override { return false; }
  bool start_object(std::size_t) override { return open(Value::object()); }
  bool start_array(std::size_t) override { return open(Value::array()); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    key_ = std::move(name);
    if (open_.back()->size() < memberLimit) return true;
    problem_ = "an object with more than " + std::to_string(memberLimit) + " keys";
    return false;
  }

  bool parse_error(std::size_t position, const std::string&,
                   const nlohmann::detail::exception&) override {
    problem_ = "not JSON (at byte " + std::to_string(position) + ")";
    return false;
  }

  const std::string& problem() const noexcept { return problem_; }
  Value take() { return std::move(root_); }

 private:
  // Puts a value where it belongs and returns its place. A key met twice keeps the last value.
  Value& place(Value value) {
    if (open_.empty()) return root_ = std::move(value);
    Value& parent = *open_.back();
    if (parent.is_object()) return parent[key_] = std::move(value);
    return parent.emplace_back(std::move(value));
  }

  bool add(Value value) {
    place(std::move(value));
    return true;
  }

  bool open(Value container) {
    if (open_.size() == depthLimit) {
      problem_ = "nested deeper than " + std::to_string(depthLimit) + " levels";
      return false;
    }
    // A container's place is stable while it is open: only its own children are added meanwhile.
    open_.push_back(&place(std::move(container)));
    return true;
  }

  bool close() {
    open_.pop_back();
    return true;
  }

  Value root_;
  std::vector<Value*> open_;
  std::string key_;
  std::string problem_ = "not JSON";
};

}  // namespace

Value parse(std::string_view text) {
  // The parser takes a zero byte for the end of the text and would not see what follows it.
  const std::size_t zero = text.find('\0');
  if (zero != std::string_view::npos) {
    throw DecodingError("not JSON (at byte " + std::to_string(zero + 1) + ")");
  }
  DocumentBuilder builder;
  if (!Value::sax_parse(text, &builder)) throw DecodingError(builder.problem());
  return builder.take();
}

std::string write(const Value& value) {
  return value.dump(-1, ' ', false, Value::error_handler_t::replace);
}

const std::string& Node::text() const {
  if (!value_->is_string()) fail("expected a text");
  return value_->get_ref<const std::string&>();
}

bool Node::boolean() const {
  if (!value_->is_boolean()) fail("expected true or false");
  return value_->get<bool>();
}

double Node::number() const {
  if (!value_->is_number()) fail("expected a number");
  return value_->get<double>();
}

WholeNumber Node::wholeNumber(WholeNumber lowest, WholeNumber highest) const {
  if (!value_->is_number_integer()) fail("expected a whole number");
  const bool isTooLarge =
      value_->is_number_unsigned() && value_->get<std::uint64_t>() > std::uint64_t{INT64_MAX};
  const WholeNumber number = isTooLarge ? 0 : value_->get<WholeNumber>();
  if (isTooLarge || number < lowest || number > highest) {
    fail("expected a whole number from " + std::to_string(lowest) + " to " +
         std::to_string(highest));
  }
  return number;
}

std::size_t Node::size() const {
  if (!value_->is_array()) fail("expected a list");
  return value_->size();
}

Node Node::element(std::size_t index) const {
  std::string path = path_ + "[" + std::to_string(index) + "]";
  if (index >= size()) Node(*value_, std::move(path)).fail("missing");
  return Node((*value_)[index], std::move(path));
}

Node Node::member(std::string_view key) const {
  requireObject();
  const auto found = value_->find(key);
  if (found == value_->end()) Node(*value_, pathOf(key)).fail("missing");
  return Node(*found, pathOf(key));
}

std::optional<Node> Node::optionalMember(std::string_view key) const {
  requireObject();
  const auto found = value_->find(key);
  if (found == value_->end() || found->is_null()) return std::nullopt;
  return Node(*found, pathOf(key));
}

void Node::fail(std::string_view problem) const {
  throw DecodingError(path_.empty() ? std::string(problem) : path_ + ": " + std::string(problem));
}

void Node::requireObject() const {
  if (!value_->is_object()) fail("expected an object");
}

std::string Node::pathOf(std::string_view key) const {
  return path_.empty() ? std::string(key) : path_ + "." + std::string(key);
}

}  // namespace tonelake::json
