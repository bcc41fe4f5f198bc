#include "gui/strutture/StruttureModello.h"

#include <algorithm>
#include <cstdlib>

#include "app/Percorsi.h"
#include "figures/FileStrutture.h"
#include "figures/LimitiStrutture.h"
#include "figures/Piazzamento.h"

namespace lottolab::gui {

namespace {

bool ByteDiSeguito(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

constexpr std::string_view kChiaveCartellaStrutture = "sCartellaStrutture";

// The same file by its links, or, when either is missing, by the path it would have.
bool StessoFile(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code ec;
  if (std::filesystem::equivalent(a, b, ec)) return true;
  std::error_code ec_a;
  std::error_code ec_b;
  const std::filesystem::path canonico_a = std::filesystem::weakly_canonical(a, ec_a);
  const std::filesystem::path canonico_b = std::filesystem::weakly_canonical(b, ec_b);
  return !ec_a && !ec_b && canonico_a == canonico_b;
}

}  // namespace

std::filesystem::path CartellaStrutture(const app::Configurazione& configurazione) {
  return app::RisolviPercorso(configurazione.base,
                              configurazione.ini.Leggi(app::kSezioneGenerale, kChiaveCartellaStrutture, "Strutture"));
}

Esito<Fatto> DestinazioneAmmessa(const std::filesystem::path& file, const app::Configurazione& configurazione) {
  const std::string nome = file.lexically_normal().string();
  for (const std::filesystem::path& archivio : {configurazione.ArchivioLotto(), configurazione.ArchivioModificabile()})
    if (StessoFile(file, archivio))
      return AvvisoEsclamativo("Il file " + nome +
                               " è l'archivio delle estrazioni: una struttura non può prenderne il posto. "
                               "Scegliere un altro nome.");
  std::error_code ec;
  const auto stato = std::filesystem::status(file, ec);
  if (stato.type() == std::filesystem::file_type::not_found) return Fatto{};
  if (!figures::FileDiStruttura(file))
    return AvvisoEsclamativo("Il file " + nome +
                             " esiste e non è una struttura: non viene sostituito. Scegliere un altro nome.");
  return Fatto{};
}

std::string CaptionAmmessa(std::string_view caption) {
  size_t caratteri = 0;
  for (size_t i = 0; i < caption.size(); ++i)
    if (!ByteDiSeguito(caption[i]) && ++caratteri > figures::kCaratteriCaption)
      return std::string(caption.substr(0, i));
  return std::string(caption);
}

const figures::ClsVertice* StruttureModello::Vertice(int16_t index) const {
  auto trovato = std::find_if(m_vertici.begin(), m_vertici.end(),
                              [&](const figures::ClsVertice& vertice) { return vertice.Index == index; });
  return trovato == m_vertici.end() ? nullptr : &*trovato;
}

figures::ClsVertice* StruttureModello::Modificabile(int16_t index) {
  return const_cast<figures::ClsVertice*>(std::as_const(*this).Vertice(index));
}

const figures::ClsVertice* StruttureModello::VerticeNellaCella(int riga, int colonna) const {
  auto trovato = std::find_if(m_vertici.begin(), m_vertici.end(), [&](const figures::ClsVertice& vertice) {
    return vertice.Riga == riga && vertice.Colonna == colonna;
  });
  return trovato == m_vertici.end() ? nullptr : &*trovato;
}

int16_t StruttureModello::IndexLibero() const {
  int16_t index = 1;
  while (Vertice(index)) ++index;
  return index;
}

// A, B, ..., Z, then A1, B1, ...: the first that no vertex shows.
std::string StruttureModello::CaptionLibera() const {
  for (int giro = 0;; ++giro)
    for (char lettera = 'A'; lettera <= 'Z'; ++lettera) {
      std::string caption = std::string(1, lettera) + (giro == 0 ? "" : std::to_string(giro));
      if (std::none_of(m_vertici.begin(), m_vertici.end(),
                       [&](const figures::ClsVertice& vertice) { return vertice.Caption == caption; }))
        return caption;
    }
}

std::optional<std::string> StruttureModello::VerticeNonAmmesso(int riga) const {
  if (m_vertici.size() >= figures::kMassimoVertici)
    return "La struttura ha già " + std::to_string(m_vertici.size()) + " vertici, il massimo.";
  for (const figures::ClsVertice& vertice : m_vertici)
    if (std::abs(vertice.Riga - riga) + 1 > figures::kMassimeRigheFigura)
      return "La struttura si stenderebbe su più di " + std::to_string(figures::kMassimeRigheFigura) + " estrazioni.";
  return std::nullopt;
}

int16_t StruttureModello::AggiungiVertice(int riga, int colonna) {
  if (!m_griglia.ContieneRiga(riga) || colonna < 1 || colonna > figures::kColonneTabella ||
      VerticeNellaCella(riga, colonna) || VerticeNonAmmesso(riga))
    return 0;
  figures::ClsVertice vertice;
  vertice.Index = IndexLibero();
  vertice.IdEstrazione = std::max(m_griglia.EstrazioneDellaRiga(riga), 0);
  vertice.Riga = static_cast<int16_t>(riga);
  vertice.Colonna = static_cast<int16_t>(colonna);
  vertice.VersoVert = kVersoDisegnato;
  vertice.VersoOrizz = kVersoDisegnato;
  vertice.Caption = CaptionLibera();
  m_vertici.push_back(vertice);
  m_modificata = true;
  return vertice.Index;
}

void StruttureModello::RimuoviVertice(int16_t index) {
  std::erase_if(m_vertici, [&](const figures::ClsVertice& vertice) { return vertice.Index == index; });
  std::erase_if(m_linee, [&](const figures::ClsLinea& linea) { return linea.Inizio == index || linea.Fine == index; });
  Rinumera();
  m_modificata = true;
}

// Lines stay numbered 1, 2, ... in the order they were drawn.
void StruttureModello::Rinumera() {
  for (size_t k = 0; k < m_linee.size(); ++k) m_linee[k].Numero = static_cast<int16_t>(k + 1);
}

Esito<Fatto> StruttureModello::ImpostaCaption(int16_t index, std::string_view caption) {
  figures::ClsVertice* vertice = Modificabile(index);
  if (!vertice) return Fatto{};
  const std::string ammessa = CaptionAmmessa(caption);
  if (auto motivo = figures::TestoNonAmmesso(ammessa, figures::kCaratteriCaption, "L'etichetta del vertice"))
    return AvvisoEsclamativo(std::move(*motivo));
  vertice->Caption = ammessa;
  m_modificata = true;
  return Fatto{};
}

void StruttureModello::ImpostaFulcroOrizz(int16_t index, bool fulcro) {
  if (!Vertice(index)) return;
  for (figures::ClsVertice& vertice : m_vertici) vertice.FulcroOrizz = fulcro && vertice.Index == index;
  m_modificata = true;
}

void StruttureModello::ImpostaFulcroVert(int16_t index, bool fulcro) {
  if (!Vertice(index)) return;
  for (figures::ClsVertice& vertice : m_vertici) vertice.FulcroVert = fulcro && vertice.Index == index;
  m_modificata = true;
}

void StruttureModello::ImpostaVersoVert(int16_t index, int16_t verso) {
  if (figures::ClsVertice* vertice = Modificabile(index)) {
    vertice->VersoVert = verso;
    m_modificata = true;
  }
}

void StruttureModello::ImpostaVersoOrizz(int16_t index, int16_t verso) {
  if (figures::ClsVertice* vertice = Modificabile(index)) {
    vertice->VersoOrizz = verso;
    m_modificata = true;
  }
}

void StruttureModello::ImpostaChiusura(int16_t index, bool chiusura) {
  if (figures::ClsVertice* vertice = Modificabile(index)) {
    vertice->UsaPerChiusura = chiusura;
    m_modificata = true;
  }
}

std::optional<std::string> StruttureModello::LineaNonAmmessa() const {
  if (m_linee.size() < figures::kMassimoLinee) return std::nullopt;
  return "La struttura ha già " + std::to_string(m_linee.size()) + " linee, il massimo.";
}

bool StruttureModello::Unisci(int16_t inizio, int16_t fine) {
  if (inizio == fine || !Vertice(inizio) || !Vertice(fine) || LineaNonAmmessa()) return false;
  const bool gia_unite = std::any_of(m_linee.begin(), m_linee.end(), [&](const figures::ClsLinea& linea) {
    return (linea.Inizio == inizio && linea.Fine == fine) || (linea.Inizio == fine && linea.Fine == inizio);
  });
  if (gia_unite) return false;
  m_linee.push_back({static_cast<int16_t>(m_linee.size() + 1), inizio, fine});
  m_modificata = true;
  return true;
}

std::optional<std::string> StruttureModello::CondizioneNonAmmessa() const {
  if (m_condizioni.size() < figures::kMassimoCondizioni) return std::nullopt;
  return "La struttura ha già " + std::to_string(m_condizioni.size()) + " condizioni, il massimo.";
}

Esito<Fatto> StruttureModello::AggiungiCondizione(std::string testo) {
  if (auto motivo = CondizioneNonAmmessa()) return AvvisoEsclamativo(std::move(*motivo));
  if (auto motivo = figures::TestoNonAmmesso(testo, figures::kByteCondizione, "La condizione"))
    return AvvisoEsclamativo(std::move(*motivo));
  m_condizioni.push_back(std::move(testo));
  m_modificata = true;
  return Fatto{};
}

Esito<Fatto> StruttureModello::ModificaCondizione(size_t posto, std::string testo) {
  if (posto >= m_condizioni.size()) return Fatto{};
  if (auto motivo = figures::TestoNonAmmesso(testo, figures::kByteCondizione, "La condizione"))
    return AvvisoEsclamativo(std::move(*motivo));
  m_condizioni[posto] = std::move(testo);
  m_modificata = true;
  return Fatto{};
}

void StruttureModello::RimuoviCondizione(size_t posto) {
  if (posto >= m_condizioni.size()) return;
  m_condizioni.erase(m_condizioni.begin() + static_cast<std::ptrdiff_t>(posto));
  m_modificata = true;
}

figures::Struttura StruttureModello::Struttura() const { return {m_vertici, m_linee, m_condizioni}; }

void StruttureModello::Carica(const figures::Struttura& struttura, int estrazioni) {
  m_vertici.clear();
  for (const figures::ClsVertice& vertice : struttura.vertici)
    if (vertice.Index != 0) m_vertici.push_back(vertice);
  m_linee = struttura.linee;
  m_condizioni = struttura.condizioni;
  m_griglia = GrigliaPer(m_vertici, estrazioni);
  m_modificata = false;
}

void StruttureModello::Nuova(int estrazioni) {
  Carica({}, estrazioni);
  m_file.clear();
}

Esito<Fatto> StruttureModello::Apri(const std::filesystem::path& file, int estrazioni) {
  auto struttura = figures::CaricaStruttura(file);
  if (!struttura) {
    Nuova(estrazioni);
    return struttura.Errore();
  }
  Carica(*struttura, estrazioni);
  m_file = file;
  return Fatto{};
}

// A text read from an old file may hold "fine": the file it came from already reads short there, and
// a new one is not written so.
Esito<Fatto> StruttureModello::Salva(const std::filesystem::path& file) {
  for (const figures::ClsVertice& vertice : m_vertici)
    if (auto motivo = figures::TestoNonAmmesso(vertice.Caption, figures::kCaratteriCaption,
                                               "L'etichetta del vertice " + std::to_string(vertice.Index)))
      return AvvisoEsclamativo(*motivo + " Correggerla prima di salvare.");
  for (size_t k = 0; k < m_condizioni.size(); ++k)
    if (auto motivo = figures::TestoNonAmmesso(m_condizioni[k], figures::kByteCondizione,
                                               "La condizione " + std::to_string(k + 1)))
      return AvvisoEsclamativo(*motivo + " Correggerla prima di salvare.");
  if (auto motivo = figures::LimiteSuperato(Struttura())) return AvvisoEsclamativo("La struttura " + *motivo + ".");
  auto salvata = figures::SalvaStruttura(file, Struttura());
  if (!salvata) return salvata;
  m_file = file;
  m_modificata = false;
  return Fatto{};
}

}  // namespace lottolab::gui
