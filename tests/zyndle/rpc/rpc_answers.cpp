#include "tests/zyndle/rpc/rpc_answers.h"

#include <cstdio>
#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Tonelake/foundation/json.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/fixed_calendar.h"
#include "zyndle/rpc/rpc.h"

namespace zyndle {
namespace {

namespace json = tonelake::json;

json::Value follow(const json::Value& result, const std::string& path) {
  if (path == "/size") return result.size();
  return result.at(json::Value::json_pointer(path));
}

// The answer to each row's request, in one go.
template <typename Row>
std::vector<json::Value> answersTo(const std::vector<Row>& rows) {
  std::string input;
  for (const Row& row : rows) input += request(row.method, "{" + row.parameters + "}") + "\n";
  std::vector<json::Value> answers;
  for (const std::string& line : zyndle::answersTo(input)) answers.push_back(json::parse(line));
  return answers;
}

}  // namespace

RpcContext testContext() {
  return {tonelake::makeUtcCalendar(),
          [](const std::string& zone) -> std::shared_ptr<const tonelake::Calendar> {
            if (zone != "Asia/Tokyo") return nullptr;
            return std::make_shared<tonelake::testing::FixedCalendar>(
                tonelake::testing::utc({2025, 3, 7, 15, 0, 0}), 9);
          }};
}

std::vector<std::string> answersTo(const std::string& input) {
  std::FILE* in = std::tmpfile();
  std::FILE* out = std::tmpfile();
  std::fwrite(input.data(), 1, input.size(), in);
  std::rewind(in);
  EXPECT_EQ(runRpc(fileno(in), fileno(out), testContext()), 0);
  std::string text(static_cast<std::size_t>(::lseek(fileno(out), 0, SEEK_END)), '\0');
  std::rewind(out);
  EXPECT_EQ(std::fread(text.data(), 1, text.size(), out), text.size());
  std::fclose(in);
  std::fclose(out);
  std::vector<std::string> lines;
  for (const std::string_view line : tonelake::split(text, '\n')) lines.emplace_back(line);
  EXPECT_EQ(lines.back(), "") << "the last answer ends with a line break";
  lines.pop_back();
  return lines;
}

std::string request(const std::string& method, const std::string& parameters) {
  return R"({"jsonrpc":"2.0","id":1,"method":")" + method + R"(","params":)" + parameters + "}";
}

void expectResults(const std::vector<MethodCase>& rows) {
  const auto answers = answersTo(rows);
  ASSERT_EQ(answers.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_TRUE(answers[i].contains("result")) << rows[i].method << " " << answers[i];
    EXPECT_EQ(follow(answers[i].at("result"), rows[i].path), json::parse(rows[i].value))
        << rows[i].method << " " << rows[i].parameters << " " << rows[i].path;
  }
}

void expectRefusals(const std::vector<RefusalCase>& rows) {
  constexpr int badParameters = -32602;
  const auto answers = answersTo(rows);
  ASSERT_EQ(answers.size(), rows.size());
  for (std::size_t i = 0; i < answers.size(); ++i) {
    ASSERT_TRUE(answers[i].contains("error")) << rows[i].method << " " << answers[i];
    EXPECT_EQ(answers[i].at("error").at("code"), badParameters) << answers[i];
    EXPECT_TRUE(
        answers[i].at("error").at("message").get<std::string>().starts_with(rows[i].message))
        << rows[i].method << " " << answers[i];
  }
}

void expectExamples(const std::string& file) {
  std::vector<MethodCase> results;
  std::vector<RefusalCase> refusals;
  std::ifstream rows(file);
  for (std::string line; std::getline(rows, line);) {
    const json::Value row = json::parse(line);
    const std::string parameters = json::write(row.at("params"));
    const std::string inside = parameters.substr(1, parameters.size() - 2);
    if (row.contains("error")) {
      refusals.push_back({row.at("method"), inside, row.at("error")});
    } else {
      results.push_back(
          {row.at("method"), inside, row.value("at", ""), json::write(row.at("result"))});
    }
  }
  EXPECT_GT(results.size() + refusals.size(), 0U) << file;
  expectResults(results);
  expectRefusals(refusals);
}

}  // namespace zyndle
