// The command-line parser: numbers whole and in range, every refusal naming its option,
// --help, and values with a syntax of their own.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "shell/shell_options.h"

namespace {

struct Parsed {
  const char* data = nullptr;
  long frames = 0;
  bool quiet = false;
  std::string start;
};
Parsed P;

bool take_start(const char* v) {
  if (std::strcmp(v, "demo") != 0) return false;
  P.start = v;
  return true;
}

const OptionRow kRows[] = {
    {.name = "--data", .value = "DIR", .help = "data", .text = &P.data},
    {.name = "--frames", .value = "N", .help = "frames", .number = &P.frames, .low = 1, .high = 1000},
    {.name = "--quiet", .value = nullptr, .help = "quiet", .flag = &P.quiet},
    {.name = "--start", .value = "demo", .help = "start", .check = take_start},
};

struct Outcome {
  OptionsResult result;
  std::string err;
};

Outcome parse(std::vector<const char*> args) {
  P = Parsed{};
  args.insert(args.begin(), "prog");
  testing::internal::CaptureStderr();
  const OptionsResult r = Options_Parse("prog", kRows, 4, static_cast<int>(args.size()),
                                        const_cast<char**>(args.data()));
  return {r, testing::internal::GetCapturedStderr()};
}

TEST(Options, ValuesLandWhereTheirRowsSay) {
  const Outcome o = parse({"--frames", "1000", "--data", "d", "--quiet", "--start", "demo"});
  EXPECT_EQ(o.result, OPTIONS_RUN);
  EXPECT_EQ(o.err, "");
  EXPECT_EQ(P.frames, 1000);
  EXPECT_STREQ(P.data, "d");
  EXPECT_TRUE(P.quiet);
  EXPECT_EQ(P.start, "demo");
  EXPECT_EQ(parse({"--frames", "1"}).result, OPTIONS_RUN);
  EXPECT_EQ(P.frames, 1);
}

TEST(Options, NumbersMustBeWholeAndInRange) {
  for (const char* bad : {"0", "1001", "abc", "10x", "", " 5", "+5", "1.5", "99999999999999999999", "-3"}) {
    SCOPED_TRACE(bad);
    const Outcome o = parse({"--frames", bad});
    EXPECT_EQ(o.result, OPTIONS_REFUSED);
    EXPECT_EQ(o.err, std::string("prog: --frames: \"") + bad +
                         "\" is not a whole number from 1 to 1000\nprog: --help lists the options\n");
  }
}

TEST(Options, RefusalsNameTheOptionAndHelpStopsReading) {
  const Outcome missing = parse({"--data", "d", "--frames"});
  EXPECT_EQ(missing.result, OPTIONS_REFUSED);
  EXPECT_EQ(missing.err.rfind("prog: --frames needs a value (N)\n", 0), 0u) << missing.err;

  const Outcome unknown = parse({"--frame", "3"});
  EXPECT_EQ(unknown.result, OPTIONS_REFUSED);
  EXPECT_EQ(unknown.err.rfind("prog: unknown option \"--frame\"\n", 0), 0u) << unknown.err;

  const Outcome syntax = parse({"--start", "fight"});
  EXPECT_EQ(syntax.result, OPTIONS_REFUSED);
  EXPECT_EQ(syntax.err.rfind("prog: --start: \"fight\" is not of the form demo\n", 0), 0u);

  // --help wins wherever it stands, even beside what would be refused.
  EXPECT_EQ(parse({"--data", "d", "--help", "--frames", "abc"}).result, OPTIONS_HELP);
  EXPECT_EQ(parse({"--frames", "abc", "--help"}).result, OPTIONS_HELP);
  EXPECT_EQ(parse({"-h"}).result, OPTIONS_HELP);
}

TEST(Options, UsageListsEveryRow) {
  char buf[2048] = {};
  std::FILE* out = fmemopen(buf, sizeof buf - 1, "w");
  ASSERT_NE(out, nullptr);
  Options_Usage(out, "usage: prog", kRows, 4);
  std::fclose(out);
  const std::string text = buf;
  EXPECT_EQ(text.rfind("usage: prog\n", 0), 0u);
  for (const char* line : {"  --data DIR ", "  --frames N ", "  --quiet ", "  --start demo ", "  --help "})
    EXPECT_NE(text.find(line), std::string::npos) << line;
}

}  // namespace
