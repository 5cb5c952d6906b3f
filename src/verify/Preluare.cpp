#include "verify/Preluare.h"

#include <chrono>
#include <string>

#include "platform/Converter.h"
#include "platform/Failure.h"
#include "records/Structura.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordAngajator.h"

namespace fisc {

namespace {

constexpr std::string_view kNl = "\r\n";
constexpr std::string_view kTr12 = "tr12.txt";
constexpr Familie kFamilii[] = {Familie::Rep, Familie::FF1, Familie::FF2, Familie::Ded};

// The names of the converter's input: "FF1_2002.dbf" and the empty template "FF1.dbf".
std::string_view Radacina(Familie f) {
  switch (f) {
    case Familie::Rep: return "Rep";
    case Familie::FF1: return "FF1";
    case Familie::FF2: return "FF2";
    case Familie::Ded: return "Ded";
  }
  return {};
}
std::string NumeDbf(Familie f, std::string_view an) {
  return std::string(Radacina(f)) + "_" + std::string(an) + ".dbf";
}
std::string Sablon(Familie f) { return std::string(Radacina(f)) + ".dbf"; }

void GolesteFisiereleDeLucru(Files& files) {
  for (Familie f : {Familie::FF1, Familie::FF2, Familie::Ded, Familie::Rep}) {
    files.DeleteIfExists(NumeLucru(f));
    files.CreateEmpty(NumeLucru(f));
  }
}

void Abandon(Platforma& p, StareVerificare& v, const std::string& mesaj) {
  Warn(p.dialogs, mesaj, "");
  v.VerifAbandonata = 1;
}

// The diskette's files, as a directory of its own. No folder is a drive
// with no diskette in it.
Files Discheta(const Drive& drive) {
  if (!drive.Ready()) Fail(err::DiskNotReady);
  return Files(drive.Root());
}

void PornesteConvertorul(Platforma& p, std::string_view an) {
  ScrieAnulConvertorului(p.files, an);
  p.launcher.Start(kConvertor, "");
}

// An intake from the diskette ends any run-time failure with one message.
template <typename Pasi>
void DeLaDischeta(Platforma& p, StareVerificare& v, Pasi&& pasi) {
  try {
    pasi();
  } catch (const RuntimeFailure&) {
    Abandon(p, v, "Nu ati introdus discheta in unitate sau discheta defecta.");
  }
}

}  // namespace

void ScrieAnulConvertorului(Files& files, std::string_view anFiscal) {
  files.DeleteIfExists(kTr12);
  LineWriter tr = files.Write(kTr12);
  tr.Line(anFiscal);
  tr.Close();
}

void copy_txt_disc(Platforma& p, std::string_view an, StareVerificare& v) {
  DeLaDischeta(p, v, [&] {
    Files& files = p.files;
    GolesteFisiereleDeLucru(files);
    Files disc = Discheta(p.drive);
    std::string rep = NumeAnual(Familie::Rep, an);
    if (!disc.Exists(rep)) {
      Abandon(p, v,
              "   Nu exista fisierul " + rep + " pe discheta." + std::string(kNl) +
                  "Alte verificari sunt abandonate.");
      return;
    }
    for (Familie f : kFamilii) {
      std::string nume = NumeAnual(f, an);
      if (disc.Exists(nume)) CopyFileAtomic(disc.Path(nume), files.Path(NumeLucru(f)));
    }
    if (disc.Length(rep) == 0) return;
    // The employer type of an earlier release stood as a text field: the
    // record is repaired here and on the diskette as well.
    std::string linie = files.Read(fisier::Repfisc).Line();
    if (StructuraRecord(linie, SablonAngajatorTipText)) {
      LineWriter out = files.Write(fisier::Temp1);
      out.Line(AngajatorCuTipNumeric(linie));
      out.Close();
      files.Replace(fisier::Temp1, fisier::Repfisc);
      CopyFileAtomic(files.Path(fisier::Repfisc), disc.Path(rep));
    } else {
      files.DeleteIfExists(fisier::Temp1);
    }
    // The diskette is left to settle.
    p.clock.Wait(std::chrono::seconds(5));
  });
}

void copy_dbf_disc(Platforma& p, std::string_view an, StareVerificare& v) {
  DeLaDischeta(p, v, [&] {
    Files& files = p.files;
    GolesteFisiereleDeLucru(files);
    Files disc = Discheta(p.drive);
    std::string rep = NumeDbf(Familie::Rep, an);
    if (!disc.Exists(rep)) {
      Abandon(p, v,
              "   Nu exista fisierul " + rep + " pe discheta." + std::string(kNl) +
                  "Alte verificari si conversia dbf->txt sunt abandonate.");
      return;
    }
    for (Familie f : kFamilii) {
      std::string nume = NumeDbf(f, an);
      if (disc.Exists(nume))
        CopyFileAtomic(disc.Path(nume), files.Path(nume));
      else
        files.Copy(Sablon(f), nume);
    }
    PornesteConvertorul(p, an);
  });
}

void tr_dbftxt(Platforma& p, std::string_view an, StareVerificare& v) {
  Files& files = p.files;
  GolesteFisiereleDeLucru(files);
  std::string rep = NumeDbf(Familie::Rep, an);
  if (!files.Exists(rep)) {
    Abandon(p, v,
            "   Nu exista fisierul " + rep + " in directorul" + std::string(kNl) + "aplicatiei." +
                std::string(kNl) + "   Alte verificari si conversia dbf->txt sunt abandonate.");
    return;
  }
  for (Familie f : {Familie::FF1, Familie::FF2, Familie::Ded}) {
    std::string nume = NumeDbf(f, an);
    if (!files.Exists(nume)) files.Copy(Sablon(f), nume);
  }
  PornesteConvertorul(p, an);
}

}  // namespace fisc
