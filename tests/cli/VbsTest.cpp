#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "LottolabDiProva.h"

namespace lottolab::cli {
namespace {

class ComandoVbsTest : public LottolabDiProva {
 protected:
  std::string Script(const std::string& nome, const std::string& byte) {
    auto file = m_base / nome;
    std::ofstream(file, std::ios::binary) << byte;
    return file.string();
  }

  Uscita Esegui(std::vector<std::string> parole) {
    parole.insert(parole.begin(), "vbs");
    return Lottolab(parole);
  }
};

TEST_F(ComandoVbsTest, LeggeUtf8EWindows1252) {
  // The same text, "perché è", in the three ways Italian scripts reach us.
  auto utf8 = Script("utf8.vbs", "WScript.Echo \"perch\xC3\xA9 \xC3\xA8\", Len(\"\xC3\xA8\")\r\n");
  auto bom = Script("bom.vbs", "\xEF\xBB\xBFWScript.Echo \"perch\xC3\xA9 \xC3\xA8\", Len(\"\xC3\xA8\")\r\n");
  auto ansi = Script("ansi.vbs", "WScript.Echo \"perch\xE9 \xE8\", Len(\"\xE8\")\r\n");
  for (const auto& file : {utf8, bom, ansi}) {
    auto uscita = Esegui({file});
    EXPECT_EQ(uscita.codice, 0) << uscita.err;
    EXPECT_EQ(uscita.out, "perch\xC3\xA9 \xC3\xA8 1\n") << file;
  }
}

TEST_F(ComandoVbsTest, ArgomentiUscitaEdErrori) {
  auto argomenti = Script("arg.vbs",
                          "Dim a : For Each a In WScript.Arguments : WScript.StdOut.Write a & \";\" : Next\n"
                          "WScript.Echo WScript.Arguments.Count, WScript.Arguments(1), WScript.ScriptName\n"
                          "WScript.Quit 3\nWScript.Echo \"mai\"\n");
  auto uscita = Esegui({argomenti, "uno", "due"});
  EXPECT_EQ(uscita.codice, 3);
  EXPECT_EQ(uscita.out, "uno;due;2 due arg.vbs\n");

  auto errore = Script("err.vbs", "Dim x\n  x = 1 / 0\n");
  uscita = Esegui({"--locale", "en-US", errore});
  EXPECT_EQ(uscita.codice, 1);
  EXPECT_EQ(uscita.err, errore + "(2, 3) Division by zero\n");
  EXPECT_EQ(Esegui({errore}).err, errore + "(2, 3) Divisione per zero\n");

  auto sintassi = Script("syn.vbs", "If x Then\n");
  uscita = Esegui({sintassi});
  EXPECT_EQ(uscita.codice, 1);
  EXPECT_NE(uscita.err.find(sintassi + "(2, "), std::string::npos) << uscita.err;

  auto messaggio = Script("msg.vbs", "WScript.Echo MsgBox(\"Continuo?\", vbYesNo)\n");
  EXPECT_EQ(Esegui({messaggio}).out, "Continuo?\n6\n") << "the terminal takes the first button";

  EXPECT_EQ(Esegui({"--locale", "fr-FR", errore}).codice, 2);
  EXPECT_EQ(Esegui({(m_base / "manca.vbs").string()}).codice, 2);
  auto periferica = Esegui({"/dev/zero"});
  EXPECT_EQ(periferica.codice, 2) << "a device is refused, never read for ever";
  EXPECT_NE(periferica.err.find("/dev/zero è una periferica"), std::string::npos) << periferica.err;
}

TEST_F(ComandoVbsTest, StdOutContaRigheEColonne) {
  // Each stream counts what went through it alone, in characters: "è" is one, as in the script.
  auto script = Script("colonne.vbs",
                       "Dim o : Set o = WScript.StdOut\n"
                       "o.Write \"ab\xC3\xA8\" : c = o.Column\n"
                       "o.WriteLine \"!\" : o.WriteBlankLines 2 : o.Write \"x\"\n"
                       "o.Write c & \" \" & o.Line & \" \" & o.Column & \" \" & WScript.StdErr.Column\n"
                       "If o.Column > 1 Then o.WriteLine\n"
                       "WScript.Echo o.Line, o.Column\n");
  auto uscita = Esegui({script});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.out, "ab\xC3\xA8!\n\n\nx4 4 2 1\n5 1\n");
}

}  // namespace
}  // namespace lottolab::cli
