#include "gui/script/EsecuzioneInThread.h"

#include "gui/comuni/LavoroSenzaEccezioni.h"

namespace lottolab::gui {

namespace {

constexpr int kAttesaFineMs = 50;
// The engine stops deep recursion by the stack it finds: a large one lets scripts recurse as deep
// as its own limit of calls allows. Only the pages used are ever taken from memory.
constexpr uint kStackScript = 512u << 20;

}  // namespace

EsecuzioneInThread::EsecuzioneInThread(DialoghiScript& dialoghi, QObject* parent)
    : QObject(parent), m_ospite(dialoghi), m_esecutore(m_ospite, &m_ospite) {}

EsecuzioneInThread::~EsecuzioneInThread() {
  if (!m_thread) return;
  // The worker may be about to ask a dialog or not yet inside the engine: both are asked again
  // until it ends.
  do {
    m_ospite.Congeda();
    m_esecutore.Stop();
    m_esecutore.InterrompiSubito();
  } while (!m_thread->wait(QDeadlineTimer(kAttesaFineMs)));
}

bool EsecuzioneInThread::Avvia(const QString& testo, script::OpzioniEsecuzione opzioni,
                               std::shared_ptr<const TabellaEstrazioni> archivio) {
  if (m_thread) {
    m_ospite.Mostra(AvvisoEsclamativo(std::string(kAttendereTermine)));
    return false;
  }
  m_archivio = std::move(archivio);
  m_testo = testo.toStdU16String();
  m_opzioni = std::move(opzioni);
  m_opzioni.libreria.archivio = m_archivio && !m_archivio->Vuota() ? m_archivio.get() : nullptr;
  m_ospite.Azzera();
  m_thread.reset(QThread::create([this] {
    auto esito = SenzaEccezioni<script::EsitoEsecuzione>("F_Script.Esegui",
                                                         [this] { return m_esecutore.Esegui(m_testo, m_opzioni); });
    if (!esito) m_ospite.Mostra(esito.Errore());
    m_esito = esito.ValoreOppure({});
  }));
  m_thread->setStackSize(kStackScript);
  // The text still gathered is handed over when this arrives, before Terminata.
  connect(m_thread.get(), &QThread::finished, this, &EsecuzioneInThread::Conclusa, Qt::QueuedConnection);
  m_thread->start();
  return true;
}

void EsecuzioneInThread::Stop() { m_esecutore.Stop(); }

void EsecuzioneInThread::InterrompiSubito() { m_esecutore.InterrompiSubito(); }

void EsecuzioneInThread::Conclusa() {
  m_thread->wait();
  m_ospite.ConsegnaInSospeso();
  m_thread.reset();
  m_archivio.reset();
  emit Terminata();
}

}  // namespace lottolab::gui
