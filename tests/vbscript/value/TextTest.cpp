#include <gtest/gtest.h>

#include "vbscript/value/DateTime.h"
#include "vbscript/value/ErrorTable.h"
#include "vbscript/value/Locale.h"

namespace vbs {
namespace {

TEST(ErrorTableTest, ItalianAndEnglishTexts) {
  const struct {
    int32_t number;
    std::u16string_view italian;
    std::u16string_view english;
  } cases[] = {
      {5, u"Chiamata di routine o argomento non validi", u"Invalid procedure call or argument"},
      {6, u"Overflow", u"Overflow"},
      {7, u"Memoria esaurita", u"Out of memory"},
      {9, u"Indice non incluso nell'intervallo", u"Subscript out of range"},
      {10, u"Matrice fissa o temporaneamente bloccata", u"This array is fixed or temporarily locked"},
      {11, u"Divisione per zero", u"Division by zero"},
      {13, u"Tipo non corrispondente", u"Type mismatch"},
      {28, u"Spazio dello stack esaurito", u"Out of stack space"},
      {94, u"Utilizzo non valido di Null", u"Invalid use of Null"},
      {424, u"Necessario oggetto", u"Object required"},
      {438, u"Proprietà o metodo non supportati dall'oggetto", u"Object doesn't support this property or method"},
      {450, u"Numero di argomenti errato o assegnazione di proprietà non valida",
       u"Wrong number of arguments or invalid property assignment"},
      {500, u"Variabile non definita", u"Variable is undefined"},
      {1002, u"Errore di sintassi", u"Syntax error"},
      {1024, u"Prevista istruzione", u"Expected statement"},
      {1025, u"Prevista fine dell'istruzione", u"Expected end of statement"},
      {12345, u"Errore di run-time sconosciuto", u"Unknown runtime error"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ErrorText(c.number, Language::Italian), c.italian) << c.number;
    EXPECT_EQ(ErrorText(c.number, Language::English), c.english) << c.number;
  }
}

TEST(ErrorTableTest, EveryListedNumberHasBothTexts) {
  std::vector<int32_t> numbers = {5,   6,    7,    9,    10,   11,   13,   28,    35,    48,    51,   52,  53,  54,
                                  55,  57,   58,   61,   62,   67,   68,   70,    71,    74,    75,   76,  91,  92,
                                  94,  322,  424,  429,  430,  432,  438,  440,   445,   446,   447,  448, 449, 450,
                                  451, 453,  455,  457,  458,  462,  481,  500,   501,   502,   503,  504, 505, 506,
                                  507, 5008, 5017, 5018, 5019, 5020, 5021, 32766, 32767, 32811, 32812};
  for (int32_t n = 1001; n <= 1058; ++n) {
    if (n != 1004 && n != 1008 && n != 1009 && n != 1035 && n != 1036) numbers.push_back(n);
  }
  for (int32_t n : numbers) {
    EXPECT_TRUE(IsKnownError(n)) << n;
    EXPECT_NE(ErrorText(n, Language::Italian), ErrorText(12345, Language::Italian)) << n;
    EXPECT_NE(ErrorText(n, Language::English), ErrorText(12345, Language::English)) << n;
  }
  EXPECT_TRUE(IsCompileError(1025));
  EXPECT_FALSE(IsCompileError(13));
}

TEST(LocaleTest, KnownLcidsAndError5ForOthers) {
  EXPECT_EQ((*LocaleFromLcid(1040))->decimal_separator, u',');
  EXPECT_EQ((*LocaleFromLcid(1033))->decimal_separator, u'.');
  EXPECT_EQ((*LocaleFromLcid(1040))->month_names[0], u"gennaio");
  EXPECT_EQ((*LocaleFromLcid(1040))->day_names[1], u"lunedì");
  EXPECT_EQ(LocaleFromLcid(9999).error()->number, 5);
  EXPECT_EQ(LocaleFromLcid(0).error()->number, 5);
}

TEST(DateTimeTest, SerialsOfKnownDays) {
  const struct {
    int year, month, day;
    double serial;
  } cases[] = {
      {1899, 12, 30, 0},      {1899, 12, 31, 1},    {1900, 1, 1, 2},         {1900, 3, 1, 61},     {2000, 1, 1, 36526},
      {2173, 10, 14, 100000}, {100, 1, 1, -657434}, {9999, 12, 31, 2958465}, {2000, 2, 29, 36585},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SerialFromDate(c.year, c.month, c.day), c.serial) << c.year << "-" << c.month << "-" << c.day;
    const DateTimeParts parts = SplitSerial(c.serial);
    EXPECT_EQ(parts.year, c.year);
    EXPECT_EQ(parts.month, c.month);
    EXPECT_EQ(parts.day, c.day);
  }
  EXPECT_FALSE(SerialFromDate(1900, 2, 29));
  EXPECT_FALSE(SerialFromDate(2001, 13, 1));
  EXPECT_FALSE(SerialFromDate(99, 1, 1));
  EXPECT_FALSE(SerialFromDate(10000, 1, 1));
}

TEST(DateTimeTest, NegativeSerialsCountTheTimeForwards) {
  const DateTimeParts p = SplitSerial(-1.25);
  EXPECT_EQ(p.year, 1899);
  EXPECT_EQ(p.month, 12);
  EXPECT_EQ(p.day, 29);
  EXPECT_EQ(p.hour, 6);
  EXPECT_EQ(CombineDateAndTime(-1, 0.25), -1.25);
  EXPECT_EQ(CombineDateAndTime(1, 0.25), 1.25);
}

TEST(DateTimeTest, TimesRoundToTheSecond) {
  const DateTimeParts p = SplitSerial(*SerialFromTime(10, 20, 30) + 0.4 / 86400);
  EXPECT_EQ(p.hour * 10000 + p.minute * 100 + p.second, 102030);
  const DateTimeParts q = SplitSerial(*SerialFromTime(23, 59, 59) + 0.6 / 86400);
  EXPECT_EQ(q.day, 31);
  EXPECT_EQ(q.hour + q.minute + q.second, 0);
  const DateTimeParts before_epoch = SplitSerial(-1.9999999);
  EXPECT_EQ(before_epoch.day, 30);
  EXPECT_EQ(before_epoch.hour + before_epoch.minute + before_epoch.second, 0);
  EXPECT_FALSE(SerialFromTime(24, 0, 0));
  EXPECT_FALSE(SerialFromTime(0, 60, 0));
}

TEST(DateTimeTest, WeekdaysCountFromSunday) {
  EXPECT_EQ(WeekdayOfSerial(*SerialFromDate(2000, 1, 1)), 7);  // a Saturday
  EXPECT_EQ(WeekdayOfSerial(*SerialFromDate(2024, 6, 2)), 1);  // a Sunday
  EXPECT_EQ(WeekdayOfSerial(0), 7);                            // 30/12/1899 was a Saturday
  EXPECT_EQ(WeekdayOfSerial(-1.5), 6);
}

TEST(DateTimeTest, ParsingRejectsWhatIsNotADate) {
  const std::u16string_view rejected[] = {
      u"",           u"4",        u"x",         u"1/2/3/4", u"10:",        u"10:20:30:40", u"1:2 3:4",
      u"32/13/2000", u"0/1/2000", u"1/1/99999", u"gennaio", u"1 foo 2000", u"1//"};
  for (auto text : rejected) {
    EXPECT_FALSE(ParseDateTime(text, ItalianLocale())) << std::string(text.begin(), text.end());
  }
  EXPECT_EQ(ParseDateTime(u"10:30", ItalianLocale()), *SerialFromTime(10, 30, 0));
  EXPECT_EQ(ParseDateTime(u"1-gen-2000", ItalianLocale()), 36526);
  EXPECT_EQ(ParseDateTime(u"Jan 1 2000", ItalianLocale()), 36526);
  EXPECT_EQ(ParseDateTime(u"1.1.2000", ItalianLocale()), 36526);
}

}  // namespace
}  // namespace vbs
