// The function tags that have no file of their own.
#include <gtest/gtest.h>

#include "support/evaluator.h"

namespace vorlane {
namespace {

// A tag before, so that a result that is kept can be seen.
const Text Before = u"<MID>old|||</MID>,";

void ExpectValues(Evaluator& evaluate, const std::vector<CodeCase>& cases) {
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(Try, TakesItsFallbackForAnEmptyOrUnresolvedValue) {
  Evaluator evaluate;
  ExpectValues(evaluate, {
                             {u"<TRY>a|b</TRY>", u"a"},
                             {u"<TRY>|b</TRY>", u"b"},
                             {u"<TRY><ARTIST>|unknown</TRY>", u"unknown"},
                             {u"<TRY>a<|b</TRY>", u"b"},
                             {u"<TRY>a>|b</TRY>", u"b"},
                             {u"<TRY>a|<FOO></TRY>", u"a"},
                             {u"<TRY>|<FOO></TRY>", u"<FOO>"},
                             {u"<TRY> |b</TRY>", u" "},
                             {u"<TRY>a|b|c</TRY>", u"a"},
                             {u"<TRY>|b|c</TRY>", u"b"},
                             {u"<TRY>abc</TRY>", u"ab"},
                             {u"<TRY>a</TRY>", u""},
                             {u"<TRY></TRY>", u""},
                         });
}

TEST(CaseTags, TakeTheWholeText) {
  Evaluator evaluate;
  ExpectValues(evaluate,
               {
                   {u"<UPPERCASE> aB|c\u00E9\u00DF </UPPERCASE>", u" AB|C\u00C9\u00DF "},
                   {u"<LOWERCASE> aB|C\u00C9I </LOWERCASE>", u" ab|c\u00E9i "},
                   {u"<PROPERCASE> the BEATLES-live at o'hara's (part.two)_a </PROPERCASE>",
                    u"The Beatles-Live At O'hara's (Part.Two)_A"},
                   {u"<PROPERCASE>a|b c</PROPERCASE>", u"A|b C"},
                   {u"<UPPERCASE></UPPERCASE>", u""},
                   {u"<LOWERCASE></LOWERCASE>", u""},
                   {u"<PROPERCASE></PROPERCASE>", u""},
                   {u"<UPPERCASE><foo></UPPERCASE>", u"<FOO>"},
               });
}

TEST(MakeExtension, PutsAPointInFront) {
  Evaluator evaluate;
  ExpectValues(evaluate, {
                             {u"<MAKEEXTENSION>mp3</MAKEEXTENSION>", u".mp3"},
                             {u"<MAKEEXTENSION>.mp3</MAKEEXTENSION>", u".mp3"},
                             {u"<MAKEEXTENSION>..mp3</MAKEEXTENSION>", u"..mp3"},
                             {u"<MAKEEXTENSION>a.b</MAKEEXTENSION>", u".a.b"},
                             {u"<MAKEEXTENSION>a|b</MAKEEXTENSION>", u".a|b"},
                             {u"<MAKEEXTENSION> </MAKEEXTENSION>", u". "},
                             {u"<MAKEEXTENSION></MAKEEXTENSION>", u""},
                             {Before + u"<MAKEEXTENSION></MAKEEXTENSION>", u"old,"},
                         });
}

TEST(Replace, ReplacesAsManyAsItsLastFieldSays) {
  Evaluator evaluate;
  ExpectValues(evaluate, {
                             {u"<REPLACE>Track 05| |_|</REPLACE>", u"Track_05"},
                             {u"<REPLACE>a.b.c|.|-|</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|1</REPLACE>", u"a-b.c"},
                             {u"<REPLACE>a.b.c|.|-|9</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|0</REPLACE>", u"a.b.c"},
                             {u"<REPLACE>a.b.c|.|-|0.4</REPLACE>", u"a.b.c"},
                             {u"<REPLACE>a.b.c|.|-|1.4</REPLACE>", u"a-b.c"},
                             {u"<REPLACE>a.b.c|.|-|-1</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|-2</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|x</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|3000000000</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|-3000000000</REPLACE>", u"a-b-c"},
                             {u"<REPLACE>a.b.c|.|-|1|x</REPLACE>", u"a-b.c"},
                             {u"<REPLACE>aaa|aa|b|</REPLACE>", u"ba"},
                             {u"<REPLACE>aA|a|b|</REPLACE>", u"bA"},
                             {u"<REPLACE>abc|b||</REPLACE>", u"ac"},
                             {u"<REPLACE>abc|abc||</REPLACE>", u""},
                             {u"<REPLACE>abc||x|</REPLACE>", u"abc"},
                             {u"<REPLACE> a | |_|</REPLACE>", u"_a_"},
                             // The third field needs its bar.
                             {u"<REPLACE>a|b|c</REPLACE>", u"a"},
                             {u"<REPLACE>a|b|c|</REPLACE>", u"a"},
                             {u"<REPLACE>abab|b|c</REPLACE>", u"aa"},
                             {u"<REPLACE>abab|b|c|</REPLACE>", u"acac"},
                         });
}

TEST(Replace, AnEmptyFirstFieldMeansTheDefaultText) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<REPLACE>|a|b|</REPLACE>", u" aa "), u" bb ");
  EXPECT_EQ(evaluate(u"<REPLACE></REPLACE>", u" aa "), u" aa ");
  EXPECT_EQ(evaluate(u"<REPLACE>abc</REPLACE>", u"x"), u"x");
}

TEST(Ascii, GivesACharacterOfTheCodePage) {
  Evaluator evaluate;
  ExpectValues(evaluate, {
                             {u"<ASCII>65</ASCII>", u"A"},
                             {u"<ASCII> 65 </ASCII>", u"A"},
                             {u"<ASCII>&H41</ASCII>", u"A"},
                             {u"<ASCII>64.6</ASCII>", u"A"},
                             {u"<ASCII>0</ASCII>", Text(1, u'\0')},
                             {u"<ASCII>128</ASCII>", u"\u20AC"},
                             {u"<ASCII>129</ASCII>", u"\u0081"},
                             {u"<ASCII>255</ASCII>", u"\u00FF"},
                             {u"<ASCII>60</ASCII>FOO<ASCII>62</ASCII>", u"<FOO>"},
                             {u"<ASCII>256</ASCII>", u""},
                             {u"<ASCII>x</ASCII>", u""},
                             {u"<ASCII></ASCII>", u""},
                             {Before + u"<ASCII>256</ASCII>", u"old,old"},
                             {Before + u"<ASCII>-1</ASCII>", u"old,old"},
                             {Before + u"<ASCII>40000</ASCII>", u"old,old"},
                             {Before + u"<ASCII>65|</ASCII>", u"old,old"},
                             {Before + u"<ASCII>x</ASCII>", u"old,old"},
                             {Before + u"<ASCII></ASCII>", u"old,old"},
                         });
}

TEST(DateTags, GiveTheFieldOfThatDateAsItStands) {
  Evaluator evaluate;
  ExpectValues(
      evaluate,
      {
          {u"<OLDESTDATETIME>1/2/2003|1/2/2004</OLDESTDATETIME>", u"1/2/2003"},
          {u"<OLDESTDATETIME>1/2/2004|2003-01-02</OLDESTDATETIME>", u"2003-01-02"},
          {u"<NEWESTDATETIME>1/2/2003|1/2/2004</NEWESTDATETIME>", u"1/2/2004"},
          {u"<NEWESTDATETIME> 1/2/2004 |1/2/2003</NEWESTDATETIME>", u" 1/2/2004 "},
          {u"<OLDESTDATETIME>1/2/2003 4:05 PM|1/2/2003 4:04 PM</OLDESTDATETIME>",
           u"1/2/2003 4:04 PM"},
          {u"<NEWESTDATETIME>3:00 PM|14:00</NEWESTDATETIME>", u"3:00 PM"},
          // A tie gives the second.
          {u"<OLDESTDATETIME>1/2/2003|2003/1/2</OLDESTDATETIME>", u"2003/1/2"},
          {u"<NEWESTDATETIME>1/2/2003|2003/1/2</NEWESTDATETIME>", u"2003/1/2"},
          // One date alone is the result, unless there is one already.
          {u"<OLDESTDATETIME>x|1/2/2003</OLDESTDATETIME>", u"1/2/2003"},
          {u"<OLDESTDATETIME>1/2/2003|x</OLDESTDATETIME>", u"1/2/2003"},
          {u"<NEWESTDATETIME>|1/2/2003</NEWESTDATETIME>", u"1/2/2003"},
          {u"<NEWESTDATETIME>1/2/2003|</NEWESTDATETIME>", u"1/2/2003"},
          {u"<NEWESTDATETIME>a|b</NEWESTDATETIME>", u""},
          {u"<OLDESTDATETIME>a|b</OLDESTDATETIME>", u""},
          {u"<OLDESTDATETIME>1|2</OLDESTDATETIME>", u""},
          {Before + u"<OLDESTDATETIME>x|1/2/2003</OLDESTDATETIME>", u"old,old"},
          {Before + u"<NEWESTDATETIME>1/2/2003|x</NEWESTDATETIME>", u"old,old"},
          {Before + u"<OLDESTDATETIME>a|b</OLDESTDATETIME>", u"old,old"},
          {Before + u"<OLDESTDATETIME>1/2/2003|1/2/2004</OLDESTDATETIME>", u"old,1/2/2003"},
      });
}

TEST(ImageExifTag, AsksTheEntryByTheTagsName) {
  Evaluator evaluate;
  evaluate.Facts.ExifByName = {{u"Make", u"Acme"}};
  ExpectValues(evaluate, {
                             {u"<IMAGEEXIFTAG>Make</IMAGEEXIFTAG>", u"Acme"},
                             {u"<IMAGEEXIFTAG>make</IMAGEEXIFTAG>", u""},
                             {Before + u"<IMAGEEXIFTAG>None</IMAGEEXIFTAG>", u"old,"},
                         });
  EXPECT_EQ(evaluate.Facts.Calls.front(),
            (FakeFacts::Call{u"ExifValueByName Make", u"C:\\Music\\name.ext"}));
  evaluate.Facts.ExifFails = true;
  ExpectValues(evaluate, {
                             {u"<IMAGEEXIFTAG>Make</IMAGEEXIFTAG>", u""},
                             {Before + u"<IMAGEEXIFTAG>Make</IMAGEEXIFTAG>", u"old,old"},
                         });
}

}  // namespace
}  // namespace vorlane
