#pragma once

// Include lines: a script names library files of its own with lines such as
//
//   includi "MieFunzioni.ls"            ' a bare name: Script/Funzioni/ under the base folder
//   includi GetDirectoryAppData\x.ls    ' under the application data folder
//
// The files are read before the user's code runs; the include lines themselves stay in the code as
// comments, so every line of the user's file keeps its number.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Esito.h"
#include "vbscript/FileAccessPolicy.h"

namespace lottolab::script {

struct CartelleScript {
  std::filesystem::path base;      // holds Script/Funzioni/
  std::filesystem::path dati_app;  // what GetDirectoryAppData names
};

struct FileIncluso {
  std::filesystem::path percorso;
  std::u16string codice;  // with every "Option Explicit" and "Option Compare Text" taken out
};

struct CodiceEspanso {
  std::u16string codice_utente;  // the include lines turned into comments
  std::vector<FileIncluso> inclusi;
};

// The file an include line names, or nothing when the line is no include line.
std::optional<std::filesystem::path> FileDiInclusione(std::u16string_view riga, const CartelleScript& cartelle);

// Reads every included file. A missing one fails with "File di inclusione", its path and
// "percorso errato" on three lines; one that `accesso` forbids reading, or that is no regular file
// of at most kLimiteFileScript bytes, fails saying so: the run must stop before any code runs.
Esito<CodiceEspanso> GestioneIncludiFile(std::u16string_view testo, const CartelleScript& cartelle,
                                         const vbs::FileAccessPolicy* accesso = nullptr);

}  // namespace lottolab::script
