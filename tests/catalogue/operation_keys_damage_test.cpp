// Code texts of any content: cut off anywhere and put together from random pieces. The latter are
// compared with a second, plain version of the rules that counts positions from 1.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "catalogue/operation_keys.h"

namespace vorlane {
namespace {

constexpr std::size_t npos = Text::npos;

TEST(OperationKeysDamage, ACodeCutAnywhereGivesTheWholeLinesBeforeTheCut) {
  const std::vector<Text> lines = {
      u"Step: <BOX1><BOX2>", u"Help Message: help", u"Wildcard: *.mp3",     u"Available Boxes: 2",
      u"Box Name: name 1",   u"Box Name: name 2",   u"Box Display: code 1", u"Box Display: code 2",
      u"Box ToolTip: tip 1", u"Box ToolTip: tip 2", u"Box Check: check 1",  u"Box Check: check 2",
  };
  Text code;
  std::vector<std::size_t> lineEnds;
  for (const auto& line : lines) {
    code += line + u"\r\n";
    lineEnds.push_back(code.size());
  }
  const auto wildcardKeyEnd = code.find(u"Wildcard:") + 9;
  for (std::size_t cut = 0; cut <= code.size(); ++cut) {
    SCOPED_TRACE(cut);
    const auto keys = ReadOperationKeys(code.substr(0, cut));
    const auto has = [&](std::size_t line) { return lineEnds[line] <= cut; };
    const auto valueIf = [&](std::size_t line, const Text& value) {
      return has(line) ? value : Text();
    };
    EXPECT_EQ(keys.HelpMessage, has(1) ? std::optional<Text>(u"help") : std::nullopt);
    const bool wildcardIsCut = wildcardKeyEnd <= cut && !has(2);
    EXPECT_EQ(keys.Failure ? keys.Failure->Number() : 0, wildcardIsCut ? 5 : 0);
    if (!has(1) || wildcardIsCut) {
      EXPECT_EQ(keys.Wildcard, std::nullopt);
    } else {
      EXPECT_EQ(keys.Wildcard, has(2) ? u"*.mp3" : u"*.*");
    }
    ASSERT_EQ(keys.Boxes.size(), !has(3) ? 0 : !has(4) ? 1 : 2);
    for (std::size_t box = 0; box < keys.Boxes.size(); ++box) {
      const Text number = DecimalText(static_cast<int>(box) + 1);
      EXPECT_EQ(keys.Boxes[box].Caption, valueIf(4 + box, u"name " + number));
      EXPECT_EQ(keys.Boxes[box].BoxCode, valueIf(6 + box, u"code " + number));
      EXPECT_EQ(keys.Boxes[box].ToolTip, valueIf(8 + box, u"tip " + number));
      EXPECT_EQ(keys.Boxes[box].CheckCaption, valueIf(10 + box, u"check " + number));
    }
    EXPECT_EQ(keys.ReachedListing, has(5));
  }
}

// The form after the selection of an operation, with the wildcard's box as a part of it.
struct PlainForm {
  Text Status = u"before";
  Text WildcardBox = u"before";
  std::array<bool, 6> Shown{};
  std::array<Text, 6> Caption, BoxCode, Key, Default, ToolTip, Check;
  bool Listed = false;
  int Failure = 0;
};

std::size_t Find(const Text& text, const Text& what, std::size_t from) {
  const auto found = text.find(what, from - 1);
  return found == npos ? 0 : found + 1;
}

// The value behind the next such key; `cursor` moves to the end of its line.
bool Search(const Text& code, const Text& key, std::size_t& cursor, Text& value) {
  const auto found = Find(code, key, cursor);
  const auto end = found == 0 ? 0 : Find(code, u"\r\n", found + key.size());
  if (end == 0) {
    return false;
  }
  value = Trim(code.substr(found + key.size() - 1, end - found - key.size()));
  cursor = end;
  return true;
}

PlainForm SelectPlainly(const Text& code) {
  PlainForm form;
  Text value;
  std::size_t cursor = 1;
  if (!Search(code, u"Help Message:", cursor, value)) {
    return form;
  }
  form.Status = value;
  if (const auto found = Find(code, u"Wildcard:", 1); found == 0) {
    form.WildcardBox = u"*.*";
  } else {
    const auto end = Find(code, u"\r\n", found + 9);
    if (end == 0) {
      form.Failure = 5;
      return form;
    }
    if (end != found + 9) {
      form.WildcardBox = Trim(code.substr(found + 8, end - found - 9));
    }
    cursor = end;
  }
  if (!Search(code, u"Available Boxes:", cursor, value)) {
    return form;
  }
  // The pieces hold no other numbers.
  if (value.size() != 1 || value[0] < u'0' || value[0] > u'9') {
    form.Failure = 13;
    return form;
  }
  const int last = std::min(value[0] - u'0' - 1, 5);
  for (int i = 0; i <= last; ++i) {
    form.Shown[i] = true;
    if (!Search(code, u"Box Name:", cursor, form.Caption[i])) {
      return form;
    }
  }
  for (int i = 0; i <= last && Search(code, u"Box Display:", cursor, value); ++i) {
    form.BoxCode[i] = value;
    if (value.substr(0, 9) == u"Registry(") {
      if (value.size() < 10) {
        form.Failure = 5;
        return form;
      }
      const Text inner = value.substr(9, value.size() - 10);
      const auto bar = Find(inner, u"|", 2);
      form.Key[i] = bar == 0 ? inner : inner.substr(0, bar - 1);
      form.Default[i] = bar == 0 ? Text() : inner.substr(bar);
    }
  }
  form.Listed = true;
  for (int i = 0; i <= last && Search(code, u"Box ToolTip:", cursor, form.ToolTip[i]); ++i) {
  }
  for (int i = 0; i <= last && Search(code, u"Box Check:", cursor, form.Check[i]); ++i) {
  }
  return form;
}

void ExpectPlainResult(const Text& code) {
  const auto keys = ReadOperationKeys(code);
  const auto form = SelectPlainly(code);
  EXPECT_EQ(keys.HelpMessage.value_or(u"before"), form.Status);
  EXPECT_EQ(keys.Wildcard.value_or(u"before"), form.WildcardBox);
  EXPECT_EQ(keys.ReachedListing, form.Listed);
  EXPECT_EQ(keys.Failure ? keys.Failure->Number() : 0, form.Failure);
  ASSERT_LE(keys.Boxes.size(), 6u);
  for (std::size_t i = 0; i < 6; ++i) {
    const auto box = i < keys.Boxes.size() ? keys.Boxes[i] : OptionBoxKeys();
    EXPECT_EQ(i < keys.Boxes.size(), form.Shown[i]);
    EXPECT_EQ(box.Caption, form.Caption[i]);
    EXPECT_EQ(box.BoxCode, form.BoxCode[i]);
    EXPECT_EQ(box.Remembered.value_or(RegistryBox()).Key, form.Key[i]);
    EXPECT_EQ(box.Remembered.value_or(RegistryBox()).Default, form.Default[i]);
    EXPECT_EQ(box.ToolTip, form.ToolTip[i]);
    EXPECT_EQ(box.CheckCaption, form.Check[i]);
  }
}

TEST(OperationKeysDamage, LinesInAlmostTheRightOrderGiveThePlainResult) {
  const std::vector<Text> order = {
      u"Help Message:", u"Wildcard:",    u"Available Boxes:", u"Box Name:",    u"Box Name:",
      u"Box Name:",     u"Box Display:", u"Box Display:",     u"Box Display:", u"Box ToolTip:",
      u"Box ToolTip:",  u"Box Check:",   u"Box Check:"};
  const Text values[] = {u"",
                         u" ",
                         u"1",
                         u" 2 ",
                         u"3",
                         u"3",
                         u"9",
                         u"x",
                         u" Registry(a)",
                         u"Registry(b|c)",
                         u"Registry(|x)",
                         u" Registry(",
                         u"Registry(|"};
  const Text ends[] = {u"\r\n", u"\r\n", u"\r\n", u"\r\n", u"\r\n", u"\r\n", u"", u"\n"};
  std::mt19937 random(20060131);
  const auto any = [&](const auto& list) { return list[random() % std::size(list)]; };
  int listed = 0, failed = 0;
  for (int round = 0; round < 20'000; ++round) {
    Text code = u"\r\n";
    for (const auto& key : order) {
      switch (random() % 16) {
        case 0:
          break;
        case 1:
          code += any(order) + any(values) + any(ends);
          [[fallthrough]];
        default:
          code += key + (key == u"Available Boxes:" && random() % 8 ? u"3" : any(values));
          code += any(ends);
      }
    }
    ExpectPlainResult(code);
    if (HasFailure()) {
      FAIL() << "round " << round;
    }
    const auto keys = ReadOperationKeys(code);
    listed += keys.ReachedListing;
    failed += keys.Failure.has_value();
  }
  // The rounds reach all the outcomes.
  EXPECT_GT(listed, 2000);
  EXPECT_GT(failed, 1000);
}

TEST(OperationKeysDamage, AnyCharactersAreRead) {
  const Text good =
      u"\r\nHelp Message: a\r\nWildcard: *.x\r\nAvailable Boxes: 2\r\nBox Name: b\r\nBox Name: "
      u"c\r\n"
      u"Box Display: Registry(d|e)\r\nBox Display: <f>\r\nBox ToolTip: g\r\nBox Check: h\r";
  std::mt19937 random(13);
  for (int round = 0; round < 20'000; ++round) {
    Text code = good;
    for (auto left = random() % 10; left > 0; --left) {
      const auto at = random() % code.size();
      if (random() % 2) {
        code[at] = static_cast<char16_t>(random());
      } else {
        code.erase(at, random() % 10);
      }
    }
    const auto keys = ReadOperationKeys(code);
    EXPECT_LE(keys.Boxes.size(), 6u);
    const auto failure = keys.Failure ? keys.Failure->Number() : 0;
    EXPECT_TRUE(failure == 0 || failure == 5 || failure == 13) << failure;
    EXPECT_FALSE(failure != 0 && keys.ReachedListing);
  }
}

}  // namespace
}  // namespace vorlane
