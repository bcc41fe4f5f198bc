#include "esporta/ScritturaXlsx.h"

#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fmt/format.h>

#include "archive/FileSicuri.h"
#include "text/Utf.h"

namespace lottolab::esporta {

namespace {

namespace fs = std::filesystem;

// A file of its own in the temporary folder, removed when the write ends however it ends.
class FileTemporaneo {
 public:
  FileTemporaneo() {
    std::string modello = (fs::temp_directory_path() / "lottolab-xlsx-XXXXXX").string();
    const int descrittore = mkstemp(modello.data());
    if (descrittore >= 0) {
      close(descrittore);
      m_percorso = modello;
    }
  }
  ~FileTemporaneo() {
    std::error_code ec;
    if (!m_percorso.empty()) fs::remove(m_percorso, ec);
  }
  FileTemporaneo(const FileTemporaneo&) = delete;
  FileTemporaneo& operator=(const FileTemporaneo&) = delete;
  const fs::path& Percorso() const { return m_percorso; }

 private:
  fs::path m_percorso;
};

lxw_format* FormatoXlsx(lxw_workbook* libro, const Formato& formato) {
  lxw_format* f = workbook_add_format(libro);
  if (formato.grassetto) format_set_bold(f);
  if (formato.corsivo) format_set_italic(f);
  if (formato.colore_testo) format_set_font_color(f, static_cast<lxw_color_t>(*formato.colore_testo));
  if (formato.colore_sfondo) {
    format_set_pattern(f, LXW_PATTERN_SOLID);
    format_set_bg_color(f, static_cast<lxw_color_t>(*formato.colore_sfondo));
  }
  if (!formato.formato_numero.empty()) format_set_num_format(f, formato.formato_numero.c_str());
  switch (formato.allineamento) {
    case Allineamento::Generale: break;
    case Allineamento::Sinistra: format_set_align(f, LXW_ALIGN_LEFT); break;
    case Allineamento::Centro: format_set_align(f, LXW_ALIGN_CENTER); break;
    case Allineamento::Destra: format_set_align(f, LXW_ALIGN_RIGHT); break;
  }
  return f;
}

std::string Testo(const Valore& valore) {
  if (const auto* testo = std::get_if<std::string>(&valore)) return *testo;
  if (const auto* numero = std::get_if<double>(&valore)) return fmt::format("{}", *numero);
  if (const auto* vero = std::get_if<bool>(&valore)) return *vero ? "VERO" : "FALSO";
  return {};
}

std::string NomeCella(const Foglio& foglio, Posizione p) {
  return fmt::format("{}!{}{}", foglio.nome, LetteraColonna(p.colonna), p.riga);
}

lxw_error ScriviCella(lxw_worksheet* foglio, Posizione p, const Valore& valore, lxw_format* formato) {
  const auto r = static_cast<lxw_row_t>(p.riga - 1);
  const auto c = static_cast<lxw_col_t>(p.colonna - 1);
  if (const auto* testo = std::get_if<std::string>(&valore))
    return worksheet_write_string(foglio, r, c, testo->c_str(), formato);
  if (const auto* numero = std::get_if<double>(&valore)) return worksheet_write_number(foglio, r, c, *numero, formato);
  if (const auto* vero = std::get_if<bool>(&valore)) return worksheet_write_boolean(foglio, r, c, *vero, formato);
  return worksheet_write_blank(foglio, r, c, formato);
}

// libxlsxwriter's own texts are English; the user reads these.
std::string Motivo(lxw_error errore) {
  switch (errore) {
    case LXW_ERROR_MEMORY_MALLOC_FAILED: return "memoria insufficiente";
    case LXW_ERROR_CREATING_XLSX_FILE:
    case LXW_ERROR_CREATING_TMPFILE:
    case LXW_ERROR_READING_TMPFILE: return "impossibile scrivere il file temporaneo (disco pieno?)";
    case LXW_ERROR_ZIP_FILE_OPERATION:
    case LXW_ERROR_ZIP_PARAMETER_ERROR:
    case LXW_ERROR_ZIP_BAD_ZIP_FILE:
    case LXW_ERROR_ZIP_INTERNAL_ERROR:
    case LXW_ERROR_ZIP_FILE_ADD:
    case LXW_ERROR_ZIP_CLOSE: return "errore nella compressione del file (disco pieno?)";
    case LXW_ERROR_SHEETNAME_LENGTH_EXCEEDED:
    case LXW_ERROR_INVALID_SHEETNAME_CHARACTER:
    case LXW_ERROR_SHEETNAME_START_END_APOSTROPHE:
    case LXW_ERROR_SHEETNAME_ALREADY_USED: return "nome di foglio non valido";
    case LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED: return "testo troppo lungo";
    default: return fmt::format("errore {} della libreria di scrittura", static_cast<int>(errore));
  }
}

Esito<Fatto> Errore(const fs::path& file, std::string motivo) {
  return AvvisoEsclamativo(fmt::format("Impossibile scrivere il file {}: {}", file.string(), motivo));
}

// Before anything is written: what libxlsxwriter would refuse or store wrongly.
std::optional<std::string> Controlla(const CartellaLavoro& cartella) {
  for (const Foglio& foglio : cartella.fogli) {
    if (auto motivo = NomeFoglioNonValido(foglio.nome)) return motivo;
    for (const auto& [p, cella] : foglio.celle) {
      if (!PosizioneValida(p)) return fmt::format("il foglio {} ha una cella fuori dai limiti", foglio.nome);
      if (cella.formato >= cartella.formati.size())
        return fmt::format("la cella {} ha un formato sconosciuto", NomeCella(foglio, p));
      const auto* testo = std::get_if<std::string>(&cella.valore);
      if (testo && text::Utf8ToUtf16(*testo).size() > kMassimoCaratteriCella)
        return fmt::format("il testo della cella {} supera {} caratteri", NomeCella(foglio, p), kMassimoCaratteriCella);
    }
  }
  return std::nullopt;
}

}  // namespace

// A text joined over several columns spreads across them: it widens none of them.
bool InUnioneDiPiuColonne(const Foglio& foglio, const Posizione& p) {
  return std::any_of(foglio.unioni.begin(), foglio.unioni.end(), [&p](const Unione& u) {
    return u.inizio.colonna != u.fine.colonna && p.riga >= u.inizio.riga && p.riga <= u.fine.riga &&
           p.colonna >= u.inizio.colonna && p.colonna <= u.fine.colonna;
  });
}

std::map<int, double> LarghezzeAdattate(const Foglio& foglio) {
  std::map<int, double> larghezze;
  for (const auto& [p, cella] : foglio.celle) {
    if (InUnioneDiPiuColonne(foglio, p)) continue;
    const double caratteri = static_cast<double>(text::Utf8ToUtf16(Testo(cella.valore)).size());
    double& larghezza = larghezze[p.colonna];
    larghezza = std::max({larghezza, 8.43, std::min(caratteri + 2, 100.0)});
  }
  return larghezze;
}

Esito<Fatto> ScriviXlsx(const CartellaLavoro& cartella, const fs::path& file) {
  if (auto motivo = Controlla(cartella)) return Errore(file, *motivo);
  FileTemporaneo temporaneo;
  if (temporaneo.Percorso().empty()) return Errore(file, "impossibile creare un file temporaneo");

  lxw_workbook* libro = workbook_new(temporaneo.Percorso().c_str());
  if (!libro) return Errore(file, "memoria insufficiente");
  std::vector<lxw_format*> formati(cartella.formati.size(), nullptr);
  auto formato = [&](uint32_t indice) -> lxw_format* {
    if (indice == 0) return nullptr;
    if (!formati[indice]) formati[indice] = FormatoXlsx(libro, cartella.formati[indice]);
    return formati[indice];
  };

  lxw_error errore = LXW_NO_ERROR;
  std::string dove;
  if (cartella.fogli.empty() && !workbook_add_worksheet(libro, "Foglio1")) errore = LXW_ERROR_MEMORY_MALLOC_FAILED;
  for (const Foglio& foglio : cartella.fogli) {
    lxw_worksheet* ws = workbook_add_worksheet(libro, foglio.nome.c_str());
    if (!ws) {
      errore = LXW_ERROR_MEMORY_MALLOC_FAILED;
      dove = foglio.nome;
      break;
    }
    for (const auto& [colonna, larghezza] : foglio.adatta_colonne ? LarghezzeAdattate(foglio) : foglio.larghezze) {
      const auto c = static_cast<lxw_col_t>(colonna - 1);
      worksheet_set_column(ws, c, c, larghezza, nullptr);
    }
    // A join writes blank cells over its range; the cells' own values and formats come after.
    for (const Unione& u : foglio.unioni) {
      const Cella* prima = foglio.Trova(u.inizio);
      errore =
          worksheet_merge_range(ws, static_cast<lxw_row_t>(u.inizio.riga - 1),
                                static_cast<lxw_col_t>(u.inizio.colonna - 1), static_cast<lxw_row_t>(u.fine.riga - 1),
                                static_cast<lxw_col_t>(u.fine.colonna - 1), "", formato(prima ? prima->formato : 0));
      if (errore != LXW_NO_ERROR) {
        dove = NomeCella(foglio, u.inizio);
        break;
      }
    }
    for (const auto& [p, cella] : foglio.celle) {
      if (errore != LXW_NO_ERROR) break;
      errore = ScriviCella(ws, p, cella.valore, formato(cella.formato));
      if (errore != LXW_NO_ERROR) dove = NomeCella(foglio, p);
    }
    if (errore != LXW_NO_ERROR) break;
  }
  const lxw_error chiusura = workbook_close(libro);
  if (errore != LXW_NO_ERROR) return Errore(file, fmt::format("{} (cella o foglio {})", Motivo(errore), dove));
  if (chiusura != LXW_NO_ERROR) return Errore(file, Motivo(chiusura));

  auto byte = LeggiFileOrdinario(temporaneo.Percorso(), uintmax_t(4) << 30);
  if (!byte) return Errore(file, byte.Errore().motivo);
  if (auto scritto = ScriviFileOrdinario(file, *byte); !scritto) return Errore(file, scritto.Errore().motivo);
  return Fatto{};
}

}  // namespace lottolab::esporta
