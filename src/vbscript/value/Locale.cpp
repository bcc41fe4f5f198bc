#include "vbscript/value/Locale.h"

namespace vbs {
namespace {

constexpr Locale kItalian = {
    kLcidItalian,
    Language::Italian,
    u',',
    u'.',
    u"€",
    DateOrder::DayMonthYear,
    u'/',
    true,
    u':',
    true,
    true,
    u"",
    u"",
    u"Vero",
    u"Falso",
    {u"gennaio", u"febbraio", u"marzo", u"aprile", u"maggio", u"giugno", u"luglio", u"agosto", u"settembre", u"ottobre",
     u"novembre", u"dicembre"},
    {u"gen", u"feb", u"mar", u"apr", u"mag", u"giu", u"lug", u"ago", u"set", u"ott", u"nov", u"dic"},
    {u"domenica", u"lunedì", u"martedì", u"mercoledì", u"giovedì", u"venerdì", u"sabato"},
    {u"dom", u"lun", u"mar", u"mer", u"gio", u"ven", u"sab"},
};

constexpr Locale kEnglishUs = {
    kLcidEnglishUs,
    Language::English,
    u'.',
    u',',
    u"$",
    DateOrder::MonthDayYear,
    u'/',
    false,
    u':',
    false,
    false,
    u"AM",
    u"PM",
    u"True",
    u"False",
    {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September", u"October",
     u"November", u"December"},
    {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"},
    {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"},
    {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"},
};

}  // namespace

const Locale& ItalianLocale() { return kItalian; }
const Locale& EnglishLocale() { return kEnglishUs; }

Result<const Locale*> LocaleFromLcid(int32_t lcid) {
  if (lcid == static_cast<int32_t>(kLcidItalian)) return &kItalian;
  if (lcid == static_cast<int32_t>(kLcidEnglishUs)) return &kEnglishUs;
  return MakeError(err::kInvalidCall);
}

}  // namespace vbs
