#include "gui/script/OspiteGui.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <fmt/format.h>
#include <optional>

#include "text/Utf.h"

// g++ 12 at -O2 takes the empty std::optional answers copied below for possibly uninitialised (a
// false positive of that release once SulThreadDellaFinestra is inlined); nothing here reads an
// uninitialised value.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace lottolab::gui {

namespace {

constexpr int kPulsanteAnnulla = 2;

}  // namespace

OspiteGui::OspiteGui(DialoghiScript& dialoghi, QObject* parent) : QObject(parent), m_dialoghi(dialoghi) {}

template <typename Risposta, typename Chiedi>
Risposta OspiteGui::SulThreadDellaFinestra(Chiedi chiedi, const Risposta& annullato) {
  if (m_congedato) return annullato;
  if (QThread::currentThread() == thread()) return chiedi();
  // A dropped request leaves the answer as it was: cancelled.
  Risposta risposta = annullato;
  QMetaObject::invokeMethod(
      this,
      [&] {
        if (!m_congedato) risposta = chiedi();
      },
      Qt::BlockingQueuedConnection);
  return risposta;
}

void OspiteGui::Congeda() {
  m_congedato = true;
  QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
}

void OspiteGui::Accoda(script::TrattoTesto tratto) {
  if (!m_tratti.empty() && m_tratti.back().colore == tratto.colore && m_tratti.back().grassetto == tratto.grassetto)
    m_tratti.back().testo += tratto.testo;
  else
    m_tratti.push_back(std::move(tratto));
}

void OspiteGui::Scrivi(const script::TrattoTesto& tratto) {
  bool chiedi = false;
  {
    std::lock_guard blocco(m_mutex);
    if (m_troncato) return;
    m_righe += std::count(tratto.testo.begin(), tratto.testo.end(), '\n');
    m_caratteri += static_cast<int64_t>(tratto.testo.size());
    if (m_righe > kMassimoRighe || m_caratteri > kMassimoCaratteri) {
      m_troncato = true;
      Accoda(script::TrattoTesto{
          fmt::format("\nOutput troncato: superate {} righe o {} MB di testo, il resto non viene mostrato.\n",
                      kMassimoRighe, kMassimoCaratteri >> 20),
          script::kRosso, true});
    } else {
      Accoda(tratto);
    }
    chiedi = !std::exchange(m_consegna_chiesta, true);
  }
  if (chiedi) QMetaObject::invokeMethod(this, &OspiteGui::ProgrammaConsegna, Qt::QueuedConnection);
}

void OspiteGui::ProgrammaConsegna() {
  const qint64 trascorsi = m_ultima_consegna.isValid() ? m_ultima_consegna.elapsed() : kIntervalloConsegnaMs;
  if (trascorsi >= kIntervalloConsegnaMs)
    ConsegnaTesto();
  else
    QTimer::singleShot(static_cast<int>(kIntervalloConsegnaMs - trascorsi), this, &OspiteGui::ConsegnaTesto);
}

std::vector<script::TrattoTesto> OspiteGui::PrimeRighe(int64_t righe) {
  auto fine = m_tratti.begin();
  std::optional<script::TrattoTesto> inizio_del_tratto;
  for (; fine != m_tratti.end() && righe > 0; ++fine) {
    const auto nel_tratto = std::count(fine->testo.begin(), fine->testo.end(), '\n');
    if (nel_tratto > righe) {
      // The piece is cut after its righe-th line; the rest waits for the next delivery.
      size_t taglio = 0;
      for (int64_t contate = 0; contate < righe; ++contate) taglio = fine->testo.find('\n', taglio) + 1;
      inizio_del_tratto = script::TrattoTesto{fine->testo.substr(0, taglio), fine->colore, fine->grassetto};
      fine->testo.erase(0, taglio);
      break;
    }
    righe -= nel_tratto;
  }
  std::vector<script::TrattoTesto> presi(std::make_move_iterator(m_tratti.begin()), std::make_move_iterator(fine));
  m_tratti.erase(m_tratti.begin(), fine);
  if (inizio_del_tratto) presi.push_back(std::move(*inizio_del_tratto));
  return presi;
}

void OspiteGui::ConsegnaTesto() { Consegna(kRighePerConsegna); }

void OspiteGui::Consegna(int64_t righe) {
  std::vector<script::TrattoTesto> tratti;
  bool resta = false;
  bool pulisci = false;
  {
    std::lock_guard blocco(m_mutex);
    pulisci = std::exchange(m_pulisci, false);
    tratti = PrimeRighe(righe);
    resta = !m_tratti.empty();
    m_consegna_chiesta = resta;
  }
  m_ultima_consegna.start();
  if (resta) QTimer::singleShot(kIntervalloConsegnaMs, this, &OspiteGui::ConsegnaTesto);
  if (pulisci) emit OutputPulito();
  if (!tratti.empty()) emit TestoScritto(tratti);
}

void OspiteGui::ConsegnaInSospeso() {
  Consegna(kMassimoRighe + 1);
  if (m_area.Disegnata()) (void)m_area.Esegui();
}

void OspiteGui::Azzera() {
  m_area.Ricomincia();
  std::lock_guard blocco(m_mutex);
  m_tratti.clear();
  m_mostrati.clear();
  m_righe = 0;
  m_caratteri = 0;
  m_troncato = false;
  m_pulisci = false;
}

void OspiteGui::Avanzamento(double percentuale) {
  m_percentuale = percentuale;
  if (!m_avanzamento_in_attesa.exchange(true))
    QMetaObject::invokeMethod(this, &OspiteGui::ConsegnaAvanzamento, Qt::QueuedConnection);
}

void OspiteGui::ConsegnaAvanzamento() {
  m_avanzamento_in_attesa = false;
  emit AvanzamentoCambiato(m_percentuale);
}

void OspiteGui::Titolo(const std::string& testo) { emit TitoloCambiato(QString::fromStdString(testo)); }

void OspiteGui::MostraAvanzamento(bool visibile) { emit AvanzamentoVisibile(visibile); }

void OspiteGui::PulisciOutput() {
  bool chiedi = false;
  {
    std::lock_guard blocco(m_mutex);
    m_tratti.clear();
    m_righe = 0;
    m_caratteri = 0;
    m_troncato = false;
    m_pulisci = true;
    chiedi = !std::exchange(m_consegna_chiesta, true);
  }
  if (chiedi) QMetaObject::invokeMethod(this, &OspiteGui::ProgrammaConsegna, Qt::QueuedConnection);
}

void OspiteGui::Messaggio(const std::string& testo) { emit MessaggioRicevuto(QString::fromStdString(testo)); }

void OspiteGui::Mostra(const Avviso& avviso) {
  // A script that repeats a failing call in a loop would otherwise keep a modal dialog in front of
  // the user, who could never reach "Interrompi subito": a message already shown in this run goes
  // to the output instead.
  if (!m_mostrati.insert(avviso.titolo + '\n' + avviso.testo).second) {
    Scrivi(script::TrattoTesto{fmt::format("{}: {}\n", avviso.titolo, avviso.testo), script::kRosso, false});
    return;
  }
  SulThreadDellaFinestra(
      [&] {
        m_dialoghi.Avvisa(avviso);
        return true;
      },
      false);
}

std::optional<std::vector<int>> OspiteGui::ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                                      bool multipla) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.ScegliVoci(titolo, voci, multipla); },
                                std::optional<std::vector<int>>());
}

std::optional<std::vector<int>> OspiteGui::ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                                        const std::vector<int>& proposti) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.ScegliNumeri(titolo, quanti, massimo, proposti); },
                                std::optional<std::vector<int>>());
}

std::optional<std::vector<double>> OspiteGui::ScegliImporti(const std::string& titolo,
                                                            const std::vector<std::string>& voci,
                                                            const std::vector<double>& proposti) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.ScegliImporti(titolo, voci, proposti); },
                                std::optional<std::vector<double>>());
}

std::optional<std::string> OspiteGui::ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                                     bool cartella) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.ScegliPercorso(titolo, proposto, cartella); },
                                std::optional<std::string>());
}

int OspiteGui::MessageBox(std::u16string_view prompt, int buttons, std::u16string_view title) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.MessageBox(prompt, buttons, title); }, kPulsanteAnnulla);
}

std::optional<std::u16string> OspiteGui::InputBox(std::u16string_view prompt, std::u16string_view title,
                                                  std::u16string_view default_text) {
  return SulThreadDellaFinestra([&] { return m_dialoghi.InputBox(prompt, title, default_text); },
                                std::optional<std::u16string>());
}

}  // namespace lottolab::gui
