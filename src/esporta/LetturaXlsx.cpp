#include "esporta/LetturaXlsx.h"

#include <zip.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <fmt/format.h>
#include <memory>
#include <pugixml.hpp>
#include <unordered_map>

#include "archive/FileSicuri.h"

namespace lottolab::esporta {

namespace {

namespace fs = std::filesystem;

struct ChiudiZip {
  void operator()(zip_t* archivio) const { zip_discard(archivio); }
};
struct ChiudiVoce {
  void operator()(zip_file_t* voce) const { zip_fclose(voce); }
};

// The reason alone; LeggiXlsx puts it in a sentence with the file's name.
struct Guasto {
  std::string motivo;
};

template <typename T>
using Risultato = Esito<T, Guasto>;

std::string_view NomeLocale(const char* nome) {
  std::string_view n(nome);
  const size_t due_punti = n.find(':');
  return due_punti == std::string_view::npos ? n : n.substr(due_punti + 1);
}

// The children of `nodo` named `nome`, whatever prefix the producer gave the namespace.
template <typename F>
void PerFigli(const pugi::xml_node& nodo, std::string_view nome, F&& fai) {
  for (pugi::xml_node figlio = nodo.first_child(); figlio; figlio = figlio.next_sibling())
    if (figlio.type() == pugi::node_element && NomeLocale(figlio.name()) == nome) fai(figlio);
}

pugi::xml_node Figlio(const pugi::xml_node& nodo, std::string_view nome) {
  for (pugi::xml_node figlio = nodo.first_child(); figlio; figlio = figlio.next_sibling())
    if (figlio.type() == pugi::node_element && NomeLocale(figlio.name()) == nome) return figlio;
  return {};
}

// The attribute whose local name is `nome` ("r:id", "id").
pugi::xml_attribute Attributo(const pugi::xml_node& nodo, std::string_view nome) {
  for (pugi::xml_attribute a = nodo.first_attribute(); a; a = a.next_attribute())
    if (NomeLocale(a.name()) == nome) return a;
  return {};
}

std::optional<double> Numero(std::string_view testo) {
  double valore = 0;
  auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (errore != std::errc() || fine != testo.data() + testo.size()) return std::nullopt;
  return valore;
}

std::optional<long> Intero(std::string_view testo, long massimo) {
  long valore = 0;
  auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (errore != std::errc() || fine != testo.data() + testo.size() || valore < 0 || valore > massimo)
    return std::nullopt;
  return valore;
}

// "FF1F4E79" or "1F4E79" as 0x1F4E79; the alpha byte is dropped, theme colours are not read.
std::optional<uint32_t> Colore(const pugi::xml_node& nodo) {
  std::string_view rgb = nodo.attribute("rgb").value();
  if (rgb.size() == 8) rgb.remove_prefix(2);
  if (rgb.size() != 6) return std::nullopt;
  uint32_t valore = 0;
  auto [fine, errore] = std::from_chars(rgb.data(), rgb.data() + rgb.size(), valore, 16);
  if (errore != std::errc() || fine != rgb.data() + rgb.size()) return std::nullopt;
  return valore;
}

// The number formats every spreadsheet knows by number without writing them in the file.
std::string FormatoPredefinito(long id) {
  switch (id) {
    case 1: return "0";
    case 2: return "0.00";
    case 3: return "#,##0";
    case 4: return "#,##0.00";
    case 9: return "0%";
    case 10: return "0.00%";
    case 11: return "0.00E+00";
    case 14: return "dd/mm/yyyy";
    case 20: return "hh:mm";
    case 22: return "dd/mm/yyyy hh:mm";
    case 49: return "@";
    default: return {};
  }
}

class Lettore {
 public:
  Lettore(zip_t* archivio, const LimitiLettura& limiti) : m_archivio(archivio), m_limiti(limiti) {}

  Risultato<CartellaLavoro> Leggi() {
    std::string principale = "xl/workbook.xml";
    if (auto rels = Documento("_rels/.rels", false); !rels) {
      return rels.Errore();
    } else if (*rels) {
      PerFigli(Radice(**rels), "Relationship", [&](pugi::xml_node r) {
        if (std::string_view(r.attribute("Type").value()).ends_with("/officeDocument"))
          principale = Normalizza("", r.attribute("Target").value());
      });
    }
    const std::string cartella = principale.substr(0, principale.rfind('/') + 1);
    auto libro = Documento(principale, true);
    if (!libro) return libro.Errore();
    auto relazioni = Relazioni(cartella, principale);
    if (!relazioni) return relazioni.Errore();

    std::string condivise = cartella + "sharedStrings.xml";
    std::string stili = cartella + "styles.xml";
    for (const auto& [id, voce] : *relazioni) {
      if (voce.tipo.ends_with("/sharedStrings")) condivise = voce.destinazione;
      if (voce.tipo.ends_with("/styles")) stili = voce.destinazione;
    }
    if (auto esito = LeggiTesti(condivise); !esito) return esito.Errore();
    if (auto esito = LeggiStili(stili); !esito) return esito.Errore();

    pugi::xml_node fogli = Figlio(Radice(**libro), "sheets");
    Risultato<CartellaLavoro> fallito = Guasto{};
    bool errore = false;
    PerFigli(fogli, "sheet", [&](pugi::xml_node f) {
      if (errore) return;
      if (m_cartella.fogli.size() >= m_limiti.fogli) {
        fallito = Guasto{fmt::format("ha più di {} fogli", m_limiti.fogli)};
        errore = true;
        return;
      }
      std::string nome = f.attribute("name").value();
      auto rel = relazioni->find(Attributo(f, "id").value());
      if (NomeFoglioNonValido(nome) || m_cartella.IndiceFoglio(nome) || rel == relazioni->end()) {
        fallito = Guasto{fmt::format("il foglio \"{}\" non è descritto correttamente", nome)};
        errore = true;
        return;
      }
      m_cartella.fogli.push_back(Foglio{.nome = std::move(nome)});
      if (auto esito = LeggiFoglio(rel->second.destinazione, m_cartella.fogli.back()); !esito) {
        fallito = esito.Errore();
        errore = true;
      }
    });
    if (errore) return fallito;
    if (m_cartella.fogli.empty()) return Guasto{"non contiene alcun foglio"};
    return std::move(m_cartella);
  }

 private:
  struct Relazione {
    std::string tipo;
    std::string destinazione;
  };
  using Documento_t = std::optional<pugi::xml_document>;

  static pugi::xml_node Radice(const pugi::xml_document& documento) { return documento.document_element(); }

  // A target relative to `cartella`, or absolute from the root of the zip, without "./" and "..".
  static std::string Normalizza(const std::string& cartella, std::string_view destinazione) {
    std::string percorso =
        destinazione.starts_with('/') ? std::string(destinazione.substr(1)) : cartella + std::string(destinazione);
    std::vector<std::string> parti;
    size_t inizio = 0;
    while (inizio <= percorso.size()) {
      const size_t fine = std::min(percorso.find('/', inizio), percorso.size());
      std::string parte = percorso.substr(inizio, fine - inizio);
      if (parte == "..") {
        if (!parti.empty()) parti.pop_back();
      } else if (!parte.empty() && parte != ".") {
        parti.push_back(std::move(parte));
      }
      inizio = fine + 1;
    }
    std::string normale;
    for (const auto& parte : parti) normale += (normale.empty() ? "" : "/") + parte;
    return normale;
  }

  // The bytes of one part, counted as they inflate; nothing when the part is absent and optional.
  Risultato<std::optional<std::string>> Parte(const std::string& nome, bool necessaria) {
    const zip_int64_t indice = zip_name_locate(m_archivio, nome.c_str(), 0);
    if (indice < 0) {
      if (necessaria) return Guasto{fmt::format("manca la parte {}", nome)};
      return std::optional<std::string>();
    }
    std::unique_ptr<zip_file_t, ChiudiVoce> voce(zip_fopen_index(m_archivio, static_cast<zip_uint64_t>(indice), 0));
    if (!voce) return Guasto{fmt::format("la parte {} non si può estrarre ({})", nome, zip_strerror(m_archivio))};
    std::string contenuto;
    char blocco[1 << 16];
    for (;;) {
      const zip_int64_t letti = zip_fread(voce.get(), blocco, sizeof blocco);
      if (letti < 0) return Guasto{fmt::format("la parte {} è danneggiata", nome)};
      if (letti == 0) break;
      contenuto.append(blocco, static_cast<size_t>(letti));
      m_letti += static_cast<uintmax_t>(letti);
      if (contenuto.size() > m_limiti.parte)
        return Guasto{fmt::format("la parte {} supera {} MB una volta estratta", nome, m_limiti.parte >> 20)};
      if (m_letti > m_limiti.totale)
        return Guasto{fmt::format("supera {} MB una volta estratto", m_limiti.totale >> 20)};
    }
    return std::optional<std::string>(std::move(contenuto));
  }

  Risultato<Documento_t> Documento(const std::string& nome, bool necessaria) {
    auto parte = Parte(nome, necessaria);
    if (!parte) return parte.Errore();
    if (!*parte) return Documento_t();
    Documento_t documento(std::in_place);
    const pugi::xml_parse_result esito = documento->load_buffer(parte->value().data(), parte->value().size(),
                                                                pugi::parse_default | pugi::parse_ws_pcdata);
    if (!esito) return Guasto{fmt::format("la parte {} non è XML valido ({})", nome, esito.description())};
    return documento;
  }

  Risultato<std::unordered_map<std::string, Relazione>> Relazioni(const std::string& cartella,
                                                                  const std::string& principale) {
    const std::string nome = cartella + "_rels/" + principale.substr(cartella.size()) + ".rels";
    auto documento = Documento(nome, true);
    if (!documento) return documento.Errore();
    std::unordered_map<std::string, Relazione> relazioni;
    PerFigli(Radice(**documento), "Relationship", [&](pugi::xml_node r) {
      relazioni[r.attribute("Id").value()] =
          Relazione{r.attribute("Type").value(), Normalizza(cartella, r.attribute("Target").value())};
    });
    return relazioni;
  }

  // The text of a shared string or an inline one: every run's text, without the phonetic hints.
  static std::string TestoRicco(const pugi::xml_node& nodo) {
    std::string testo;
    for (pugi::xml_node figlio = nodo.first_child(); figlio; figlio = figlio.next_sibling()) {
      const std::string_view nome = NomeLocale(figlio.name());
      if (nome == "t") testo += figlio.text().get();
      if (nome == "r") testo += Figlio(figlio, "t").text().get();
    }
    return testo;
  }

  Risultato<Fatto> LeggiTesti(const std::string& nome) {
    auto documento = Documento(nome, false);
    if (!documento) return documento.Errore();
    if (!*documento) return Fatto{};
    PerFigli(Radice(**documento), "si", [&](pugi::xml_node si) { m_testi.push_back(TestoRicco(si)); });
    return Fatto{};
  }

  Risultato<Fatto> LeggiStili(const std::string& nome) {
    auto documento = Documento(nome, false);
    if (!documento) return documento.Errore();
    if (!*documento) return Fatto{};
    const pugi::xml_node radice = Radice(**documento);
    std::unordered_map<long, std::string> numeri;
    PerFigli(Figlio(radice, "numFmts"), "numFmt",
             [&](pugi::xml_node n) { numeri[n.attribute("numFmtId").as_int(-1)] = n.attribute("formatCode").value(); });
    std::vector<Formato> caratteri;
    PerFigli(Figlio(radice, "fonts"), "font", [&](pugi::xml_node f) {
      Formato formato;
      formato.grassetto = Figlio(f, "b") && Figlio(f, "b").attribute("val").as_bool(true);
      formato.corsivo = Figlio(f, "i") && Figlio(f, "i").attribute("val").as_bool(true);
      formato.colore_testo = Colore(Figlio(f, "color"));
      caratteri.push_back(formato);
    });
    std::vector<std::optional<uint32_t>> riempimenti;
    PerFigli(Figlio(radice, "fills"), "fill", [&](pugi::xml_node f) {
      const pugi::xml_node motivo = Figlio(f, "patternFill");
      const bool pieno = std::string_view(motivo.attribute("patternType").value()) == "solid";
      riempimenti.push_back(pieno ? Colore(Figlio(motivo, "fgColor")) : std::nullopt);
    });
    bool troppi = false;
    PerFigli(Figlio(radice, "cellXfs"), "xf", [&](pugi::xml_node xf) {
      if (m_formati.size() >= m_limiti.formati) {
        troppi = true;
        return;
      }
      Formato formato;
      const size_t carattere = xf.attribute("fontId").as_uint();
      if (carattere < caratteri.size()) formato = caratteri[carattere];
      const size_t riempimento = xf.attribute("fillId").as_uint();
      if (riempimento < riempimenti.size()) formato.colore_sfondo = riempimenti[riempimento];
      const long numero = xf.attribute("numFmtId").as_int();
      auto proprio = numeri.find(numero);
      formato.formato_numero = proprio != numeri.end() ? proprio->second : FormatoPredefinito(numero);
      if (formato.formato_numero == "General") formato.formato_numero.clear();
      const std::string_view orizzontale = Figlio(xf, "alignment").attribute("horizontal").value();
      if (orizzontale == "left") formato.allineamento = Allineamento::Sinistra;
      if (orizzontale == "center") formato.allineamento = Allineamento::Centro;
      if (orizzontale == "right") formato.allineamento = Allineamento::Destra;
      m_formati.push_back(m_cartella.IndiceFormato(formato));
    });
    if (troppi) return Guasto{fmt::format("ha più di {} formati di cella", m_limiti.formati)};
    return Fatto{};
  }

  Risultato<Fatto> LeggiFoglio(const std::string& nome, Foglio& foglio) {
    auto documento = Documento(nome, true);
    if (!documento) return documento.Errore();
    const pugi::xml_node radice = Radice(**documento);
    std::optional<Guasto> guasto;
    int riga_attesa = 0;
    PerFigli(Figlio(radice, "sheetData"), "row", [&](pugi::xml_node r) {
      if (guasto) return;
      int riga = riga_attesa + 1;
      if (pugi::xml_attribute a = r.attribute("r"))
        riga = static_cast<int>(Intero(a.value(), kMassimoRighe).value_or(0));
      if (riga < 1) {
        guasto = Guasto{fmt::format("il foglio \"{}\" ha una riga fuori dai limiti", foglio.nome)};
        return;
      }
      riga_attesa = riga;
      int colonna_attesa = 0;
      PerFigli(r, "c", [&](pugi::xml_node c) {
        if (guasto) return;
        Posizione posizione{riga, colonna_attesa + 1};
        if (pugi::xml_attribute a = c.attribute("r")) {
          auto letta = LeggiRiferimento(a.value());
          if (!letta || letta->riga != riga) {
            guasto = Guasto{fmt::format("il foglio \"{}\" ha una cella con il riferimento non valido \"{}\"",
                                        foglio.nome, a.value())};
            return;
          }
          posizione = *letta;
        }
        if (!PosizioneValida(posizione)) {
          guasto = Guasto{fmt::format("il foglio \"{}\" ha una cella fuori dai limiti", foglio.nome)};
          return;
        }
        colonna_attesa = posizione.colonna;
        if (++m_celle > m_limiti.celle) {
          guasto = Guasto{fmt::format("ha più di {} celle", m_limiti.celle)};
          return;
        }
        Cella cella;
        const size_t stile = c.attribute("s").as_uint();
        if (stile < m_formati.size()) cella.formato = m_formati[stile];
        auto valore = ValoreCella(c);
        if (!valore) {
          guasto = Guasto{fmt::format("il foglio \"{}\" ha un valore non valido nella cella {}{}", foglio.nome,
                                      LetteraColonna(posizione.colonna), posizione.riga)};
          return;
        }
        cella.valore = std::move(*valore);
        if (cella.formato != 0 || cella.valore.index() != 0) foglio.celle[posizione] = std::move(cella);
      });
    });
    if (guasto) return *guasto;
    PerFigli(Figlio(radice, "mergeCells"), "mergeCell", [&](pugi::xml_node m) {
      std::string_view ref = m.attribute("ref").value();
      const size_t due_punti = ref.find(':');
      auto inizio = LeggiRiferimento(ref.substr(0, due_punti));
      auto fine = due_punti == std::string_view::npos ? std::nullopt : LeggiRiferimento(ref.substr(due_punti + 1));
      // A range joined twice, or upside down, is what no spreadsheet would open as it is: left out.
      if (inizio && fine) (void)foglio.AggiungiUnione(Unione{*inizio, *fine});
    });
    // The blank cells a join covers only repeat its format: the model keeps the first one alone.
    for (const Unione& u : foglio.unioni) {
      auto it = foglio.celle.upper_bound(u.inizio);
      while (it != foglio.celle.end() && !(u.fine < it->first)) {
        const bool coperta = it->first.colonna >= u.inizio.colonna && it->first.colonna <= u.fine.colonna;
        it = coperta && it->second.valore.index() == 0 ? foglio.celle.erase(it) : std::next(it);
      }
    }
    PerFigli(Figlio(radice, "cols"), "col", [&](pugi::xml_node c) {
      const long primo = c.attribute("min").as_int();
      const long ultimo = c.attribute("max").as_int();
      const double larghezza = c.attribute("width").as_double();
      if (!c.attribute("customWidth").as_bool() || primo < 1 || ultimo < primo || ultimo > kMassimoColonne ||
          !(larghezza > 0 && larghezza <= 255))
        return;
      // Producers write one range for every column to the last one: only the first ones matter.
      // The file holds the width with the cell's padding of 5 pixels in a font 7 pixels wide.
      const double caratteri = std::round(std::max(0.0, larghezza - 5.0 / 7) * 100) / 100;
      for (long colonna = primo; colonna <= std::min(ultimo, primo + 255); ++colonna)
        foglio.larghezze[static_cast<int>(colonna)] = caratteri;
    });
    return Fatto{};
  }

  std::optional<Valore> ValoreCella(const pugi::xml_node& c) const {
    const std::string_view tipo = c.attribute("t").value();
    const std::string_view v = Figlio(c, "v").text().get();
    if (tipo == "inlineStr") return Valore(TestoRicco(Figlio(c, "is")));
    if (!Figlio(c, "v")) return Valore();
    if (tipo == "s") {
      auto indice = Intero(v, static_cast<long>(m_testi.size()) - 1);
      if (!indice) return std::nullopt;
      return Valore(m_testi[static_cast<size_t>(*indice)]);
    }
    if (tipo == "str" || tipo == "e") return Valore(std::string(v));
    if (tipo == "b") return Valore(v == "1");
    auto numero = Numero(v);
    if (!numero) return std::nullopt;
    return Valore(*numero);
  }

  zip_t* m_archivio;
  const LimitiLettura& m_limiti;
  uintmax_t m_letti = 0;
  size_t m_celle = 0;
  std::vector<std::string> m_testi;
  std::vector<uint32_t> m_formati;  // by the file's style index, into the model's table
  CartellaLavoro m_cartella{.formati = {Formato{}}};
};

Risultato<CartellaLavoro> Leggi(std::string_view byte, const LimitiLettura& limiti) {
  zip_error_t errore;
  zip_error_init(&errore);
  zip_source_t* sorgente = zip_source_buffer_create(byte.data(), byte.size(), 0, &errore);
  if (!sorgente) {
    zip_error_fini(&errore);
    return Guasto{"memoria insufficiente"};
  }
  std::unique_ptr<zip_t, ChiudiZip> archivio(zip_open_from_source(sorgente, ZIP_RDONLY, &errore));
  zip_error_fini(&errore);
  if (!archivio) {
    zip_source_free(sorgente);
    return Guasto{"non è un archivio zip"};
  }
  return Lettore(archivio.get(), limiti).Leggi();
}

}  // namespace

Esito<CartellaLavoro> LeggiXlsxDaByte(std::string_view byte, const LimitiLettura& limiti) {
  if (byte.size() > limiti.file)
    return AvvisoEsclamativo(fmt::format("Il file supera {} MB: non viene letto", limiti.file >> 20));
  auto cartella = Leggi(byte, limiti);
  if (!cartella)
    return AvvisoEsclamativo(
        fmt::format("Il file non è una cartella di lavoro .xlsx leggibile: {}", cartella.Errore().motivo));
  return std::move(cartella).Valore();
}

Esito<CartellaLavoro> LeggiXlsx(const fs::path& file, const LimitiLettura& limiti) {
  auto byte = LeggiFileOrdinario(file, limiti.file);
  if (!byte) {
    return AvvisoEsclamativo(fmt::format("Impossibile leggere il file {}: {}", file.string(), byte.Errore().motivo));
  }
  auto cartella = Leggi(*byte, limiti);
  if (!cartella)
    return AvvisoEsclamativo(fmt::format("Il file {} non è una cartella di lavoro .xlsx leggibile: {}", file.string(),
                                         cartella.Errore().motivo));
  return std::move(cartella).Valore();
}

}  // namespace lottolab::esporta
