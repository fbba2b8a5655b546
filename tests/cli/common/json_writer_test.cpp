#include "cli/common/json_writer.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace {

using cli::JsonWriter;
using Layout = JsonWriter::Layout;

TEST(JsonWriterTest, LaysOutObjectsInLinesAndArraysAsAsked) {
  std::ostringstream out;
  JsonWriter json(out);
  json.BeginObject();
  json.Key("list");
  json.BeginArray(Layout::kLines);
  json.Integer(1);
  json.BeginArray(Layout::kOneLine);
  json.Bool(true);
  json.Null();
  json.EndArray();
  json.EndArray();
  json.Key("empty");
  json.BeginObject();
  json.EndObject();
  json.EndObject();
  EXPECT_EQ(out.str(),
            "{\n"
            "  \"list\": [\n"
            "    1,\n"
            "    [true, null]\n"
            "  ],\n"
            "  \"empty\": {}\n"
            "}\n");
}

std::string Written(double number) {
  std::ostringstream out;
  JsonWriter(out).Number(number);
  return out.str();
}

TEST(JsonWriterTest, NumbersAreShortestAndReadBackTheSame) {
  EXPECT_EQ(Written(0.1), "0.1");
  EXPECT_EQ(Written(100.0), "100");
  EXPECT_EQ(Written(0.30000000000000004), "0.30000000000000004");
  EXPECT_EQ(Written(5e-324), "5e-324");
  EXPECT_EQ(Written(1.7976931348623157e308), "1.7976931348623157e+308");
}

TEST(JsonWriterTest, NegativeZeroKeepsItsSignForReadersThatKnowWholeNumbers) {
  EXPECT_EQ(Written(-0.0), "-0.0");
}

TEST(JsonWriterTest, NumbersThatAreNotFiniteAreNull) {
  EXPECT_EQ(Written(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(Written(std::numeric_limits<double>::quiet_NaN()), "null");
}

TEST(JsonWriterTest, TextIsEscaped) {
  std::ostringstream out;
  JsonWriter(out).String("a\"b\\\n\x1b\xff");
  EXPECT_EQ(out.str(), "\"a\\\"b\\\\\\n\\u001b\xEF\xBF\xBD\"");
}

}  // namespace
