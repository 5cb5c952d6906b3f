#include "app/Schimb.h"

#include <functional>
#include <string>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "records/Numere.h"
#include "records/Structura.h"
#include "sheets/FisiereSet.h"
#include "sheets/RecordAngajator.h"

namespace fisc {

namespace {

// One statement of a routine that resumes after any failure.
void Pas(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RuntimeFailure&) {
  }
}

constexpr Familie kLaPornire[] = {Familie::Rep, Familie::FF1, Familie::FF2, Familie::Ded};
constexpr Familie kLaSfarsit[] = {Familie::FF1, Familie::FF2, Familie::Ded, Familie::Rep};

// Step 6 of the start: the employer record of an earlier release of this
// year kept the type as a text field; it becomes a bare field.
bool ConvertesteRep(Files& files, const std::string& repY, bool canalBlocat) {
  bool convertit = false;
  // With nothing to convert the step touches nothing, not even a temp1.txt
  // that is already there.
  bool deConvertit = false;
  Pas([&] { deConvertit = files.Exists(repY) && files.Length(repY) > 0; });
  if (!deConvertit) return false;
  Pas([&] {
    if (canalBlocat) Fail(err::FileAlreadyOpen);
    std::string line;
    {
      LineReader in = files.Read(repY);
      line = in.Line();
    }
    convertit = StructuraRecord(line, SablonAngajatorTipText);
    LineWriter out = files.Write(fisier::Temp1);
    if (convertit) out.Line(AngajatorCuTipNumeric(line));
    out.Close();
  });
  Pas([&] {
    if (!files.Exists(fisier::Temp1)) return;
    if (convertit)
      files.Replace(fisier::Temp1, repY);
    else
      files.Delete(fisier::Temp1);
  });
  return convertit;
}

}  // namespace

std::string AnAnterior(std::string_view an) { return TextDin(Valoare(an) - 1); }

RezultatPornire SchimbLaPornire(Files& files, std::string_view anFiscal, bool canalBlocat) {
  RezultatPornire r;
  std::string an(anFiscal), anterior = AnAnterior(anFiscal);

  Pas([&] {
    if (!files.Exists(fisier::Repfisc) || files.Length(fisier::Repfisc) == 0) return;
    if (canalBlocat) Fail(err::FileAlreadyOpen);
    std::string line = files.Read(fisier::Repfisc).Line();
    r.AlteAn = !StructuraRecord(line, SablonAngajatorAnAnterior);
  });

  r.RepConvertit = ConvertesteRep(files, NumeAnual(Familie::Rep, an), canalBlocat);

  for (Familie f : kLaPornire) {
    std::string_view w = NumeLucru(f);
    std::string y = NumeAnual(f, an), p = NumeAnual(f, anterior);
    Pas([&] {
      if (!files.Exists(w)) files.CreateEmpty(w);
    });
    // The copy replaces the old file in one rename, so it is not deleted
    // first: a failing copy leaves it whole.
    Pas([&] {
      if (r.AlteAn)
        files.CreateEmpty(p);
      else
        files.Copy(w, p);
    });
    Pas([&] {
      if (files.Exists(y))
        files.Copy(y, w);
      else
        files.CreateEmpty(w);
    });
  }
  return r;
}

void SchimbLaSfarsit(Files& files, std::string_view anFiscal) {
  std::string an(anFiscal), anterior = AnAnterior(anFiscal);
  Pas([&] { files.DeleteIfExists(fisier::Ff1Sort1); });
  Pas([&] { files.DeleteIfExists(fisier::Ff2Sort1); });
  for (Familie f : kLaSfarsit) {
    std::string_view w = NumeLucru(f);
    std::string y = NumeAnual(f, an);
    Pas([&] {
      if (files.Exists(w))
        files.Copy(w, y);
      else
        files.CreateEmpty(y);
    });
  }
  for (Familie f : kLaSfarsit) {
    std::string_view w = NumeLucru(f);
    std::string p = NumeAnual(f, anterior);
    Pas([&] {
      if (files.Exists(p))
        files.Copy(p, w);
      else
        files.CreateEmpty(w);
    });
  }
  for (std::string_view name : {fisier::Ff1Sort, fisier::Ff2Sort, fisier::DedSort, fisier::RepSort})
    Pas([&] { files.DeleteIfExists(name); });
}

}  // namespace fisc
