// vorlane-cli eval --jsonl: many evaluations, one JSON object a line each way.
#include "cli/run_cli.h"

namespace vorlane {
namespace {

struct Line {
  std::string Question;
  std::string Answer;
};

void ExpectAnswers(const std::vector<Line>& table) {
  std::string questions;
  std::vector<std::string> answers;
  for (const Line& line : table) {
    questions += line.Question + "\n";
    answers.push_back(line.Answer);
  }
  const ProgramResult result = RunCli({"eval", "--jsonl"}, questions);
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(Lines(result.Output), answers);
}

TEST(CliEvalJsonl, AnswersEachLineInItsOrderUnderItsId) {
  ExpectAnswers({
      {R"({"id":1,"code":"<FILENAME>","name":"a"})", R"({"id":1,"result":"a"})"},
      {R"({"id":"x","code":"<UPPERCASE><FILENAME></UPPERCASE>","name":"b"})",
       R"({"id":"x","result":"B"})"},
      {R"({"code":"<FILENAME>","name":"c"})", R"({"id":null,"result":"c"})"},
      {R"({"id":{"b":[1,2.5,null],"a":"ü"},"code":"<FILENAME>","name":"d"})",
       R"({"id":{"b":[1,2.5,null],"a":"ü"},"result":"d"})"},
      {R"({"id":2,"code":"words","name":"a"})", R"({"id":2,"result":""})"},
  });
}

TEST(CliEvalJsonl, TakesAllThatTheOptionsTake) {
  ExpectAnswers({
      {R"({"code":"<AUTONUMBER>","name":"a","number":7,"rows":120})",
       R"({"id":null,"result":"007"})"},
      {R"({"code":"<BOX1><BOX6><BOX2>","name":"a","boxes":{"1":"x","6":"<NAMEONLY>"}})",
       R"({"id":null,"result":"xa<BOX2>"})"},
      {R"({"code":"<WriteID3v1><NAMEONLY>|","name":"a"})", R"({"id":null,"result":""})"},
      {R"({"code":"<WriteID3v1><NAMEONLY>|","name":"a","tagSteps":true})",
       R"({"id":null,"result":"<WriteID3v1>a|"})"},
      {R"({"code":"<MOVE>x</MOVE>","name":"a","folder":"/R"})", R"({"id":null,"result":""})"},
      {R"({"code":"<MOVE>x</MOVE>","name":"a","folder":"/R","folderSteps":true})",
       R"({"id":null,"result":"/R/x/"})"},
      {R"({"code":"<MOVE>x</MOVE>","name":"a","folder":"C:\\Music\\","folderSteps":true,"paths":"windows"})",
       R"({"id":null,"result":"C:\\Music\\x\\"})"},
      {R"({"code":"<FOLDERNAME>","name":"a","folder":"C:\\Music\\Rock","paths":"windows"})",
       R"({"id":null,"result":"Rock"})"},
      {R"({"code":"<FOLDERNAME>","name":"a","folder":"/R/S/","paths":"posix"})",
       R"({"id":null,"result":"S"})"},
  });
}

TEST(CliEvalJsonl, TagsAreGivenAndNotRead) {
  ExpectAnswers({
      {R"({"code":"<ARTIST>/<TRACK>","name":"a.mp3","tagV1":{"present":true,"artist":"One","track":"07"}})",
       R"({"id":null,"result":"One/07"})"},
      {R"({"code":"<ARTIST>","name":"a.mp3","tagV1":{"present":true,"artist":"One"},"tagV2":{"present":true,"artist":"Two"}})",
       R"({"id":null,"result":"Two"})"},
      {R"({"code":"<ARTIST>","name":"a.mp3","tagV1":{"present":true,"artist":"One"},"tagV2":{"present":false,"artist":"Two"}})",
       R"({"id":null,"result":"One"})"},
      {R"({"code":"<ARTIST>.","name":"a.mp3","tagV1":{"artist":"One"}})",
       R"({"id":null,"result":"."})"},
      {R"({"code":"<ARTIST>.","name":"a.mp3"})", R"({"id":null,"result":"."})"},
      {R"({"code":"<TITLE>|<ALBUM>|<COMMENTS>","name":"a.mp3","tagV2":{"present":true,"artist":"","title":"T","album":"L","track":"00","comment":"C","year":"1999","genre":17,"unicode":true}})",
       R"({"id":null,"result":"T|L|C"})"},
      {R"({"code":"<TRY><ARTIST>|none|</TRY>","name":"a.txt","tagV1":{"present":true,"artist":"One"}})",
       R"({"id":null,"result":"none"})"},
  });
}

TEST(CliEvalJsonl, LoneSurrogatesAreEscapesBothWays) {
  ExpectAnswers({
      {R"({"id":"\udc80","code":"<FILENAME>","name":"a\udce4b"})",
       R"({"id":"\udc80","result":"a\udce4b"})"},
      {R"({"code":"<FILENAME><BOX1>","name":"\ud83d","boxes":{"1":"\ude00"}})",
       "{\"id\":null,\"result\":\"\xF0\x9F\x98\x80\"}"},
      {R"({"code":"<MID><FILENAME>||2|</MID>","name":"😀x"})", R"({"id":null,"result":"\ude00x"})"},
      {R"({"code":"<FILENAME>","name":"😀\\ud800\ue000"})",
       "{\"id\":null,\"result\":\"😀\\\\ud800\xEE\x80\x80\"}"},
      {R"({"code":"<FILENAME>","name":"\u0000\u001f\""})",
       R"({"id":null,"result":"\u0000\u001f\""})"},
      {R"({"code":"<ARTIST>","name":"a.mp3","tagV1":{"present":true,"artist":"\udcff"}})",
       R"({"id":null,"result":"\udcff"})"},
  });
}

TEST(CliEvalJsonl, EmptyLinesAndOtherLineEndsArePassedOver) {
  const std::string question = R"({"code":"<FILENAME>","name":"a"})";
  const std::string answer = "{\"id\":null,\"result\":\"a\"}\n";
  const ProgramResult result =
      RunCli({"eval", "--jsonl"}, "\n" + question + "\r\n \t\r\n" + question);
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, answer + answer);
  const ProgramResult nothing = RunCli({"eval", "--jsonl"}, "");
  EXPECT_EQ(nothing.Status, 0);
  EXPECT_EQ(nothing.Output + nothing.Errors, "");
}

struct BadLine {
  std::string Line;
  std::string Message;
};

TEST(CliEvalJsonl, ABadLineIsToldOfByItsNumberBehindTheAnswersBeforeIt) {
  const std::vector<BadLine> table = {
      {"nonsense", "not JSON at byte 2"},
      {R"({"code":"<FILENAME>","name":"a)", "not JSON at byte 31"},
      {R"({"code":"<FILENAME>","name":"a"} x)", "not JSON at byte 34"},
      {"{\"code\":\"\xE4\",\"name\":\"a\"}", "not JSON at byte 11"},
      {R"({"code":"<FILENAME>","name":"a","number":1e999})", "a number is too large"},
      {R"({"id":-1e999,"code":"<FILENAME>","name":"a"})", "a number is too large"},
      {"[1]", "expected a JSON object"},
      {"null", "expected a JSON object"},
      {"{}", "code is required"},
      {R"({"code":"x"})", "name is required"},
      {R"({"name":"x"})", "code is required"},
      {R"({"code":1,"name":"x"})", "code: expected a text"},
      {R"({"code":"x","name":null})", "name: expected a text"},
      {R"({"code":"x","name":"a","folder":1})", "folder: expected a text"},
      {R"({"code":"x","name":"a","number":"1"})",
       "number: expected a whole number from -2147483648 to 2147483647"},
      {R"({"code":"x","name":"a","number":1.5})",
       "number: expected a whole number from -2147483648 to 2147483647"},
      {R"({"code":"x","name":"a","rows":2147483648})",
       "rows: expected a whole number from -2147483648 to 2147483647"},
      {R"({"code":"x","name":"a","rows":18446744073709551615})",
       "rows: expected a whole number from -2147483648 to 2147483647"},
      {R"({"code":"x","name":"a","boxes":["x"]})", "boxes: expected an object"},
      {R"({"code":"x","name":"a","boxes":{"7":"x"}})", "boxes: expected a number 1 to 6, not 7"},
      {R"({"code":"x","name":"a","boxes":{"1=":"x"}})", "boxes: expected a number 1 to 6, not 1="},
      {R"({"code":"x","name":"a","boxes":{"1":5}})", "box 1: expected a text"},
      {R"({"code":"x","name":"a","tagSteps":1})", "tagSteps: expected true or false"},
      {R"({"code":"x","name":"a","folderSteps":"yes"})", "folderSteps: expected true or false"},
      {R"({"code":"x","name":"a","paths":"mac"})", "paths: expected windows or posix, not mac"},
      {R"({"code":"x","name":"a","tagV1":null})", "tagV1: expected an object"},
      {R"({"code":"x","name":"a","tagV2":{"artist":1}})", "artist: expected a text"},
      {R"({"code":"x","name":"a","tagV2":{"present":"yes"}})", "present: expected true or false"},
      {R"({"code":"x","name":"a","tagV2":{"genre":99999}})",
       "genre: expected a whole number from -32768 to 32767"},
      {R"({"code":"x","name":"a","facts":5})", "facts: expected an object"},
      {R"({"code":"x","name":"a","facts":{"size":"big"}})",
       "size: expected a whole number from 0 to 9223372036854775807"},
      {R"({"code":"x","name":"a","facts":{"size":-1}})",
       "size: expected a whole number from 0 to 9223372036854775807"},
      {R"({"code":"x","name":"a","facts":{"kbit":70000}})",
       "kbit: expected a whole number from -32768 to 32767"},
      {R"({"code":"x","name":"a","facts":{"created":5}})", "created: expected a text"},
      {R"({"code":"x","name":"a","facts":{"created":"2024-02-30T00:00:00"}})",
       "created: expected YYYY-MM-DDTHH:MM:SS"},
      {R"({"code":"x","name":"a","facts":{"modified":"2024-02-03 00:00:00"}})",
       "modified: expected YYYY-MM-DDTHH:MM:SS"},
      {R"({"code":"x","name":"a","facts":{"now":"2024-02-03T00:00:0x"}})",
       "now: expected YYYY-MM-DDTHH:MM:SS"},
      {R"({"code":"x","name":"a","facts":{"exif":[]}})", "exif: expected an object"},
      {R"({"code":"x","name":"a","facts":{"exif":{"Make":"x"}}})",
       "exif: expected a tag number, not Make"},
      {R"({"code":"x","name":"a","facts":{"exif":{"271":5}}})", "exif 271: expected a text"},
  };
  const std::string good = R"({"id":1,"code":"<FILENAME>","name":"a"})";
  for (const BadLine& bad : table) {
    const ProgramResult result =
        RunCli({"eval", "--jsonl"}, good + "\n\n" + bad.Line + "\n" + good + "\n");
    EXPECT_EQ(result.Status, 2) << bad.Line;
    EXPECT_EQ(result.Output, "{\"id\":1,\"result\":\"a\"}\n");
    EXPECT_EQ(result.Errors, "vorlane-cli: line 3: " + bad.Message + "\n");
  }
}

}  // namespace
}  // namespace vorlane
