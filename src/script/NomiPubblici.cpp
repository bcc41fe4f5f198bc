#include "NomiPubblici.h"

namespace lottolab::script {

namespace {

constexpr std::string_view kGet[] = {
    "GetPathFileHtml",
    "GetTestoHtml",
    "GetCombSviluppo",
    "GetCombSviluppoRid",
    "GetCombSviluppate",
    "GetPercCombSviluppate",
    "GetCombPermutazioni",
    "GetAmbiUguali",
    "GetAmbiUgualiDistanzaX",
    "GetAmbiUgualiSommaX",
    "GetAmbiUgualiIsotopi",
    "GetAmbiUgualiIsotopiDistanzaX",
    "GetAmbiUgualiIsotopiSommaX",
    "GetAmbiDistanzaX",
    "GetAmbiSommaX",
    "GetCollQuadratoCiclometrico",
    "GetCollAquiloneCiclometrico",
    "GetCollParallelepipedi",
    "GetCollParallelepipediFT",
    "GetCollParallelepipediQN",
    "GetArrayNumeriFromFiguraGeodomica",
    "GetNumeroVerticiFiguraGeodomica",
    "GetCollFiguraUtente",
    "GetCollFiguraUtenteFT",
    "GetCollFiguraUtenteQN",
    "GetInfoEstrazione",
    "GetInfoEstrazioneSE",
    "GetInfoEstrazioneWF",
    "GetInfoEstrazioneDL",
    "GetInfoEstrazioneFT",
    "GetArrayNumeriFromFiguraCiclo",
    "GetCollTriangoliEquilateri",
    "GetCollTriangoliIsosceli",
    "GetCollTrapezioIsoscele",
    "GetCollRettangoli",
    "GetEstrazioneCompleta",
    "GetArrayNumeriRuota",
    "GetEstrazioneCompletaDL",
    "GetEstrazioneCompletaSE",
    "GetEstrazioneCompletaFT",
    "GetEstrazioneCompletaWF",
    "GetTabella",
    "GetTabellaX",
    "GetDirectoryTemp",
    "GetDirectoryAppData",
    "GetNewCollection",
    "GetNewDisegnoCiclometrico",
    "GetItemFormazione",
    "GetItemCollection",
    "GetElementiFormazione",
    "GetQElemFormazione",
    "GetClasseFormazione",
    "GetSpesa",
    "GetVincita",
    "GetGuadagno",
    "GetNumPerSviluppo",
    "GetMatriceSistemaRidotto",
    "GetTabAnalitico",
    "GetPremioPerSorte",
    "GetColonnaCasuale",
    "GetQuantitaGiocateEffettuate",
    "GetSituazioneGiocate",
    "GetCollFigureCiclometriche",
    "GetPremioLotto",
    "GetColoreHtml",
    "GetStreamFT",
    "GetNextLineFT",
    "GetVettoreProgressione",
    "GetNumeroUnivoco",
    "GetRitardoEstratti",
    "GetRitRel",
    "GetRitRelTurbo",
    "GetRitRelMax",
    "GetRitRelMaxTurbo",
    "GetANumeri",
    "GetMotoreSviluppoIntegrale",
    "GetLunghettePiuRitardate",
};

constexpr std::string_view kAmbo[] = {
    "AmboFrequenza",    "AmboFrequenzaSE",    "AmboFrequenzaWF",   "AmboFrequenzaDL",      "AmboFrequenzaFT",
    "AmboRitardo",      "AmboRitardoSE",      "AmboRitardoWF",     "AmboRitardoDL",        "AmboRitardoFT",
    "AmboStorico",      "AmboStoricoSE",      "AmboStoricoWF",     "AmboStoricoDL",        "AmboStoricoFT",
    "AmboIncrStorico",  "AmboIncrStoricoSE",  "AmboIncrStoricoWF", "AmboIncrStoricoDL",    "AmboIncrStoricoFT",
    "AmboPosRit",       "AmboPosRitSE",       "AmboPosRitWF",      "AmboPosRitDL",         "AmboPosRitFT",
    "AmboRitardoTurbo", "AmboFrequenzaTurbo", "AmboStoricoTurbo",  "AmboIncrStoricoTurbo",
};

constexpr std::string_view kEstratto[] = {
    "Estratto",
    "EstrattoSE",
    "EstrattoWF",
    "EstrattoDL",
    "EstrattoFT",
    "EstrattoFrequenza",
    "EstrattoFrequenzaDL",
    "EstrattoFrequenzaSE",
    "EstrattoFrequenzaWF",
    "EstrattoFrequenzaFT",
    "EstrattoRitardo",
    "EstrattoRitardoDL",
    "EstrattoRitardoSE",
    "EstrattoRitardoWF",
    "EstrattoRitardoFT",
    "EstrattoStorico",
    "EstrattoStoricoDL",
    "EstrattoStoricoSE",
    "EstrattoStoricoWF",
    "EstrattoStoricoFT",
    "EstrattoIncrStorico",
    "EstrattoIncrStoricoDL",
    "EstrattoIncrStoricoSE",
    "EstrattoIncrStoricoFT",
    "EstrattoRitardoTurbo",
    "EstrattoStoricoTurbo",
    "EstrattoFrequenzaTurbo",
    "EstrattoIncrStoricoTurbo",
};

constexpr std::string_view kSerie[] = {
    "SerieEstrazioneStorico",
    "SerieEstrazioneStoricoFT",
    "SerieStorico",
    "SerieStoricoSE",
    "SerieStoricoWF",
    "SerieStoricoDL",
    "SerieStoricoFT",
    "SeriePrima",
    "SeriePrimaSE",
    "SeriePrimaWF",
    "SeriePrimaDL",
    "SeriePrimaFT",
    "SerieFreq",
    "SerieUltima",
    "SerieFreqSE",
    "SerieFreqWF",
    "SerieFreqDL",
    "SerieFreqFT",
    "SerieRitardo",
    "SerieRitardoSE",
    "SerieRitardoWF",
    "SerieRitardoDL",
    "SerieRitardoFT",
    "SerieRitardoTurbo",
    "SerieFreqTurbo",
    "SerieStoricoTurbo",
};

constexpr std::string_view kImposta[] = {
    "ImpostaPropColoriCerchioCiclo",
    "ImpostaPropDrawWidthCerchioCiclo",
    "ImpostaPropFlagFigureCerchioCiclo",
    "ImpostaGiocataSE",
    "ImpostaGiocataWF",
    "ImpostaGiocataDL",
    "ImpostaGiocataFT",
    "ImpostaGiocata",
    "ImpostaGiocataVirtuale",
    "ImpostaEstrazione",
    "ImpostaEstrazioneSE",
    "ImpostaEstrazioneWF",
    "ImpostaEstrazioneDL",
    "ImpostaEstrazioneFT",
    "ImpostaInterruzioni",
    "ImpostaNessunaEstrazione",
    "ImpostaNessunaEstrazioneSE",
    "ImpostaNessunaEstrazioneWF",
    "ImpostaNessunaEstrazioneDL",
    "ImpostaNessunaEstrazioneFT",
    "ImpostaProgressione",
    "ImpostaProgressioneVirtuale",
    "ImpostaProgressioneDL",
    "ImpostaProgressioneFT",
    "ImpostaArchivio10ELotto",
};

constexpr std::string_view kXls[] = {
    "XlsMostra",
    "XlsApriFile",
    "XlsScrivi",
    "XlsFormatoCella",
    "XlsMerge",
    "XlsLeggi",
    "XlsChiudi",
    "XlsSalva",
    "XlsGetFoglio",
    "XlsScriviInFoglio",
    "XlsLeggiinFoglio",
    "XlsAddFoglio",
    "XlsMergeInFoglio",
    "XlsFormatoCellaInFoglio",
    "XlsScriviC",
    "XlsScriviCInFoglio",
    "XlsGetLetteraFromColonna",
    "XlsAutoFit",
    "XlsLeft",
    "XlsRight",
    "XlsCenter",
};

constexpr std::string_view kIs[] = {
    "isIdEstrValido",
    "isIdEstrValidoSE",
    "isIdEstrValidoWF",
    "isIdEstrValidoDL",
    "isIdEstrValidoFT",
    "isNumeroValidoLotto",
    "isRuotaValidaLotto",
    "isSorteValidaLotto",
    "isSorteValidaSE",
    "isSorteValidaWF",
    "isSorteValidaDL",
    "isSorteValidaFT",
    "IsNumeroPresenteInEstrazione",
    "IsNumeroPresenteInEstrazioneSE",
    "IsNumeroPresenteInEstrazioneWF",
    "IsNumeroPresenteInEstrazioneDL",
    "IsNumeroPresenteInEstrazioneFT",
    "IsUltimaDelMese",
};

constexpr std::string_view kScrivi[] = {
    "Scrivi",
    "ScriviConColori",
    "ScriviEstrazione",
    "ScriviEstrazioneSE",
    "ScriviEstrazioneWF",
    "ScriviEstrazioneDL",
    "ScriviEstrazioneFT",
    "ScriviFile",
    "ScriviMatrice",
    "ScriviResoconto",
    "ScriviResocontoSE",
    "ScriviResocontoWF",
    "ScriviResocontoDL",
    "ScriviResocontoFT",
};

constexpr std::string_view kStatistica[] = {
    "StatisticaGruppoFormazioni",   "StatisticaGruppoFormazioniSE",    "StatisticaGruppoFormazioniWF",
    "StatisticaGruppoFormazioniFT", "StatisticaGruppoFormazioniDL",    "StatisticaFormazione",
    "StatisticaFormazioneSE",       "StatisticaFormazioneWF",          "StatisticaFormazioneDL",
    "StatisticaNumeroOroDL",        "StatisticaNumeroOroWF",           "StatisticaFormazioneFT",
    "StatisticaFormazioneTurbo",    "StatisticaGruppoFormazioniTurbo",
};

constexpr std::string_view kPic[] = {
    "PicSetDimensioni",     "PicColoreSfondo", "PicRiempi",        "PicClear",  "PicTextWidth",
    "PicTextHeight",        "PicStampaTesto",  "PicStampaTestoRT", "PicPunto",  "PicLinea",
    "PicLineaTratteggiata", "PicPoligono",     "PicCerchio",       "PicEsegui",
};

constexpr std::string_view kStat[] = {
    "StatAmbo",       "StatAmboSE",     "StatAmboWF",     "StatAmboDL",     "StatAmboFT",   "StatEstratto",
    "StatEstrattoSE", "StatEstrattoWF", "StatEstrattoDL", "StatEstrattoFT", "StatFrzTurbo", "StatAmboTurbo",
};

constexpr std::string_view kInit[] = {
    "InitScript",
    "InitArrayFlagEstrazioniAttive",
    "InitArrayFlagEstrazioniAttiveFT",
    "InitSviluppoIntegrale",
    "InitSviluppoPermutazioni",
    "InitTabella",
    "InitTabellaX",
    "InitGenNumUnivoci",
    "InitCalcoloRitRel",
    "InitCalcoloRitRelTurbo",
};

constexpr std::string_view kData[] = {
    "DataEstrazione",   "DataEstrazioneSE",   "DataEstrazioneWF",   "DataEstrazioneDL",   "DataEstrazioneFT",
    "DataEstrToIdEstr", "DataEstrToIdEstrDL", "DataEstrToIdEstrSE", "DataEstrToIdEstrWF", "DataEstrToIdEstrFT",
};

constexpr std::string_view kEstrazioni[] = {
    "EstrazioniArchivio",   "EstrazioniArchivioSE", "EstrazioniArchivioWF", "EstrazioniArchivioDL",
    "EstrazioniArchivioFT", "EstrazioniRicerca",    "EstrazioniRicercaSE",  "EstrazioniRicercaWF",
    "EstrazioniRicercaDL",  "EstrazioniRicercaFT",
};

constexpr std::string_view kRitardo[] = {
    "RitardoCombinazione",      "RitardoCombinazioneSE", "RitardoCombinazioneWF", "RitardoCombinazioneDL",
    "RitardoCombinazioneFT",    "RitardoEstratto",       "RitardoEstrattoDL",     "RitardoEstrattoFT",
    "RitardoCombinazioneTurbo", "RitardoEstrattoTurbo",
};

constexpr std::string_view kIndice[] = {
    "IndiceAnnuale", "IndiceAnnualeSE", "IndiceAnnualeWF", "IndiceAnnualeDL", "IndiceAnnualeFT",
    "IndiceMensile", "IndiceMensileSE", "IndiceMensileWF", "IndiceMensileDL", "IndiceMensileFT",
};

constexpr std::string_view kScegli[] = {
    "ScegliNumeri", "ScegliRuota",       "ScegliEsito",     "ScegliRuote", "ScegliDaLista",
    "ScegliPoste",  "ScegliOpzioneMenu", "ScegliDirectory", "ScegliFile",  "ScegliRange",
};

constexpr std::string_view kStringa[] = {
    "StringaEstratti", "StringaEstrattiFT",      "StringaEstrattiDL",    "StringaEstrattiWF",     "StringaEstrattiSE",
    "StringaNumeri",   "StringaNumeriDaMatrice", "StringaNumeriToArray", "StringaNumeriToArrayB", "StringaRuote",
};

constexpr std::string_view kSet[] = {
    "SetFlagSalvaPrevisioniInCorso",
    "setFromScript",
    "SetNomeFileHtmlOut",
    "SetTableWidth",
    "SetColoreCella",
    "SetTableWidthX",
    "SetColoreCellaX",
    "SetPremioPagatoFT",
    "SetComportamentoACapo",
};

constexpr std::string_view kEstrazione[] = {
    "EstrazioneFin",        "EstrazioneAttivata",   "EstrazioneAttivataSE",
    "EstrazioneAttivataWF", "EstrazioneAttivataDL", "EstrazioneAttivataFT",
    "EstrazioneIni",        "EstrazioneIniDL",      "EstrazioneFinDL",
};

constexpr std::string_view kDisegna[] = {
    "DisegnaCerchioCiclometrico", "DisegnaEstrazione",
    "DisegnaEstrazioneQN",        "DisegnaEstrazioneFromFiguraCiclometrica",
    "DisegnaFiguraGeodomica",     "DisegnaFiguraGeodomicaFT",
    "DisegnaFiguraGeodomicaQN",   "DisegnaLineaGrafico",
};

constexpr std::string_view kAdd[] = {
    "AddNumeriToGruppoStatistico", "AddRigaTabella",         "AddRigaTabellaX",       "AddItemFormazioneMultipla",
    "AddItemFormazione",           "AddRecordAgendaGiocate", "AddLunghettaInGiocata", "AddItemColl",
};

constexpr std::string_view kNumeri[] = {
    "NumeriDispari",
    "NumeriPari",
    "NumeriNulli",
    "NumeriPrimi",
    "NumeriNonPrimi",
    "NumeriRipetuti",
    "NumeriRipetutiRilevatiE",
    "NumeriRipetutiRilevatiV",
};

constexpr std::string_view kVerifica[] = {
    "VerificaEsito",   "VerificaEsitoConGuadagno", "VerificaEsitoSE",    "VerificaEsitoWF",
    "VerificaEsitoDL", "VerificaEsitoFT",          "VerificaEsitoTurbo", "VerificaAmbetto",
};

constexpr std::string_view kElenco[] = {
    "ElencoRitardi",   "ElencoRitardiDL", "ElencoRitardiNumeroOroDL", "ElencoRitardiSE",
    "ElencoRitardiWF", "ElencoRitardiFT", "ElencoFileInDirectory",    "ElencoRitardiTurbo",
};

constexpr std::string_view kSalva[] = {
    "SalvaEstrazione",   "SalvaEstrazioneDL", "SalvaEstrazioneFT",   "SalvaEstrazioneSE",
    "SalvaEstrazioneWF", "SalvaPrevisione",   "SalvaColonnaSistema",
};

constexpr std::string_view kNumero[] = {
    "NumeroOroDL", "NumeroOroWF", "NumeroCasuale", "NumeroPosRit", "NumeroPosRitFT", "NumeroPosRitTurbo",
};

constexpr std::string_view kGioca[] = {
    "GiocaSE", "GiocaWF", "GiocaDL", "GiocaFT", "Gioca", "GiocaVirtuale",
};

constexpr std::string_view kMese[] = {
    "Mese", "MeseSE", "MeseWF", "MeseDL", "MeseFT", "MeseNome",
};

constexpr std::string_view kPiu[] = {
    "PiuRitardatario",     "PiuRitardatarioTurbo", "PiuRitardatari",
    "PiuRitardatariTurbo", "PiuRitardatarioFT",    "PiuRitardatariFT",
};

constexpr std::string_view kSomma[] = {
    "SommaEstratti",   "SommaEstrattiDL", "SommaEstrattiSE",
    "SommaEstrattiWF", "SommaEstrattiFT", "SommaVerticaleInFigura",
};

constexpr std::string_view kGenera[] = {
    "GeneraAnalitico",   "GeneraAnalitico2",     "GeneraAnaliticoRuote",
    "GeneraAnaliticoFT", "GeneraAnaliticoTurbo", "GeneraAnaliticoTurbo2",
};

constexpr std::string_view kRit[] = {
    "RitPos", "RitPosFT", "RitPosTurbo", "RitPosCrono", "RitPosCronoRp1", "RitSincDiLiv",
};

constexpr std::string_view kCrea[] = {
    "CreaDirectory", "CreaTabella", "CreaTabellaOrdinabile", "CreaTabellaX", "CreaPiramideRitardi", "CreaGiocataAgenda",
};

constexpr std::string_view kAnno[] = {
    "Anno", "AnnoSE", "AnnoWF", "AnnoDL", "AnnoFT",
};

constexpr std::string_view kFuori[] = {
    "Fuori90", "Fuori49", "Fuori45", "FuoriX", "Fuori42",
};

constexpr std::string_view kGiorno[] = {
    "giorno", "GiornoSE", "GiornoWF", "GiornoDL", "GiornoFT",
};

constexpr std::string_view kAzzera[] = {
    "AzzeraHtmlOutput",
    "AzzeraHtmlOutputMulti",
    "AzzeraFlagStopProcess",
    "AzzeraArrayInterruzioni",
};

constexpr std::string_view kPosizione[] = {
    "Posizione",
    "PosizioneFT",
    "PosizioneDL",
    "PosizioneSE",
};

constexpr std::string_view kPrima[] = {
    "PrimaPrecedente",
    "PrimaPrecedenteFT",
    "PrimaSuccessiva",
    "PrimaSuccessivaFT",
};

constexpr std::string_view kTabellone[] = {
    "TabelloneAnalitico",
    "TabelloneAnaliticoRuote",
    "TabelloneAnaliticoFT",
    "TabelloneAnaliticoTurbo",
};

constexpr std::string_view kQuantita[] = {
    "QuantitaTeoricaCombAlRitX",
    "QuantitaTeoricaCombMagUgAlRitX",
    "QuantitaTeoricaCombCompreseTraRit",
    "QuantitaEstrazioniInFile",
};

constexpr std::string_view kArray[] = {
    "ArrayNumeriToBool",
    "ArrayNumToArrayBNum",
    "ArrayBNumToArrayNum",
    "ArrayBToString",
};

constexpr std::string_view kAggiorna[] = {
    "AggiornaArchivio",
    "AggiornaArchivioWF",
    "AggiornaArchivioDL",
    "AggiornaArchivioSE",
};

constexpr std::string_view kApri[] = {
    "ApriBaseDatiFT",
    "ApriFileBaseDati",
    "ApriDirectory",
};

constexpr std::string_view kOrdina[] = {
    "OrdinaMatrice",
    "OrdinaItemCollection",
    "OrdinaMatriceTurbo",
};

constexpr std::string_view kDecina[] = {
    "Decina",
    "DecinaNaturale",
    "DecinaCabalistica",
};

constexpr std::string_view kMassimo[] = {
    "Massimo",
    "MassimoE",
    "MassimoV",
};

constexpr std::string_view kMinimo[] = {
    "Minimo",
    "MinimoE",
    "MinimoV",
};

constexpr std::string_view kPos[] = {
    "PosNumeroRit",
    "PosNumeroRitFT",
    "PosNumeroRitTurbo",
};

constexpr std::string_view kNum[] = {
    "NumParToNumReale",
    "NumParToNumPadre",
    "NumVirtToNumReale",
};

constexpr std::string_view kLeggi[] = {
    "LeggiRigheFileDiTesto",
    "LeggiColonnaSistema",
    "LeggiEstrazioneDaFile",
};

constexpr std::string_view kReset[] = {
    "ResetArchivi",
    "ResetRitardoRel",
    "ResetRitardoRelTurbo",
};

constexpr std::string_view kDiff[] = {
    "DiffCiclometrica",
    "DiffCiclometricaX",
};

constexpr std::string_view kChiudi[] = {
    "ChiudiFileHtmlOutput",
    "ChiudiStreamFT",
};

constexpr std::string_view kColora[] = {
    "ColoraRtfOutput",
    "ColoraRtfOutputMulti",
};

constexpr std::string_view kInterrompi[] = {
    "InterrompiTutteLegiocate",
    "InterrompiTutteLegiocateVirtuali",
};

constexpr std::string_view kFormat[] = {
    "Format2",
    "FormatSpace",
};

constexpr std::string_view kNome[] = {
    "NomeRuota",
    "NomeSorte",
};

constexpr std::string_view kElimina[] = {
    "EliminaRipetuti",
    "EliminaFile",
};

constexpr std::string_view kOutput[] = {
    "Output",
    "OutputVirtuale",
};

constexpr std::string_view kResetta[] = {
    "ResettaGiocate",
    "ResettaGiocateVirtuale",
};

constexpr std::string_view kClose[] = {
    "CloseFileHandle",
    "CloseAllFileHandle",
};

constexpr std::string_view kDiametrale[] = {
    "Diametrale",
    "DiametraleD",
};

constexpr std::string_view kFascia[] = {
    "FasciaIniDL",
    "FasciaFinDL",
};

constexpr std::string_view kRuota[] = {
    "RuotaDiametrale",
    "RuotaGemella",
};

constexpr std::string_view kSviluppo[] = {
    "SviluppoIntegrale",
    "SviluppoPermutazioni",
};

constexpr std::string_view kDownload[] = {
    "DownloadFromWeb",
    "DownloadFromFtp",
};

constexpr std::string_view kCopia[] = {
    "CopiaFile",
    "CopiaArray",
};

constexpr std::string_view kQv[] = {
    "QvCerchio_InitDisegno",
    "QvCerchio_TovataFigura",
};

constexpr std::string_view kMatrice[] = {
    "MatriceNumToVetNum",
    "MatriceNumToBNum",
};

constexpr std::string_view kRuote[] = {
    "RuoteSel",
    "RuoteSelB",
};

constexpr std::string_view kAltre[] = {
    "StopProcess",
    "ColoreTesto",
    "Messaggio",
    "AvanzamentoElab",
    "Distanza",
    "TestoInBandaPassante",
    "ScriptInterrotto",
    "Scambia",
    "DeinizializzaXls",
    "Cadenza",
    "Combinazioni",
    "Permutazioni",
    "ControFigura",
    "Figura",
    "Piramide",
    "vert",
    "Radicale",
    "SiglaRuota",
    "CicloTeorico",
    "FormattaStringa",
    "Gemello",
    "OraWF",
    "pari",
    "dispari",
    "Primo",
    "Prob",
    "Differenza",
    "Ripetizioni",
    "Trasposizione",
    "Grafico",
    "ForzaIncrementoPuntatoreSvilSisInt",
    "Vincita",
    "Includi",
    "DoEventsEx",
    "FileEsistente",
    "DirectoryEsistente",
    "SplitByChar",
    "PreparaGrafico",
    "LayOutGrafico",
    "InserisciGrafico",
    "FiltraArrayEstrDieciELotto",
    "Iif",
    "UploadFileFtp",
    "LanciaFile",
    "ComplAdX",
    "Dividi",
    "Moltiplica",
    "MidX",
    "VisualizzaFormProgress",
    "EsportaListviewInXls",
    "RinominaFile",
    "PuntiSuArray",
    "ProporzioneX",
    "CreateObjectX",
    "ConvDec",
    "TestAmbetto",
    "RimuoviLastChr",
    "FattN",
    "FattorialeNum",
    "AllineaArchivi",
};

constexpr FamigliaDiNomi kFamiglie[] = {
    {"Get", kGet},
    {"Ambo", kAmbo},
    {"Estratto", kEstratto},
    {"Serie", kSerie},
    {"Imposta", kImposta},
    {"Xls", kXls},
    {"Is", kIs},
    {"Scrivi", kScrivi},
    {"Statistica", kStatistica},
    {"Pic", kPic},
    {"Stat", kStat},
    {"Init", kInit},
    {"Data", kData},
    {"Estrazioni", kEstrazioni},
    {"Ritardo", kRitardo},
    {"Indice", kIndice},
    {"Scegli", kScegli},
    {"Stringa", kStringa},
    {"Set", kSet},
    {"Estrazione", kEstrazione},
    {"Disegna", kDisegna},
    {"Add", kAdd},
    {"Numeri", kNumeri},
    {"Verifica", kVerifica},
    {"Elenco", kElenco},
    {"Salva", kSalva},
    {"Numero", kNumero},
    {"Gioca", kGioca},
    {"Mese", kMese},
    {"Piu", kPiu},
    {"Somma", kSomma},
    {"Genera", kGenera},
    {"Rit", kRit},
    {"Crea", kCrea},
    {"Anno", kAnno},
    {"Fuori", kFuori},
    {"Giorno", kGiorno},
    {"Azzera", kAzzera},
    {"Posizione", kPosizione},
    {"Prima", kPrima},
    {"Tabellone", kTabellone},
    {"Quantita", kQuantita},
    {"Array", kArray},
    {"Aggiorna", kAggiorna},
    {"Apri", kApri},
    {"Ordina", kOrdina},
    {"Decina", kDecina},
    {"Massimo", kMassimo},
    {"Minimo", kMinimo},
    {"Pos", kPos},
    {"Num", kNum},
    {"Leggi", kLeggi},
    {"Reset", kReset},
    {"Diff", kDiff},
    {"Chiudi", kChiudi},
    {"Colora", kColora},
    {"Interrompi", kInterrompi},
    {"Format", kFormat},
    {"Nome", kNome},
    {"Elimina", kElimina},
    {"Output", kOutput},
    {"Resetta", kResetta},
    {"Close", kClose},
    {"Diametrale", kDiametrale},
    {"Fascia", kFascia},
    {"Ruota", kRuota},
    {"Sviluppo", kSviluppo},
    {"Download", kDownload},
    {"Copia", kCopia},
    {"Qv", kQv},
    {"Matrice", kMatrice},
    {"Ruote", kRuote},
    {"Altre", kAltre},
};

}  // namespace

std::span<const FamigliaDiNomi> NomiPubblici() { return kFamiglie; }

}  // namespace lottolab::script
