// The listings fed with whatever the readers accept. Each line of the input
// goes to a file by its first byte: 1 Ff1.txt, 2 Ff2.txt, D Deduceri.txt,
// R Repfisc.txt; a sheet line the reader refuses stays out, as the
// verification keeps it out of the files of a run.

#include "fuzz/FuzzSupport.h"
#include "listings/Borderou.h"
#include "listings/Cadru.h"
#include "listings/Centralizator.h"
#include "listings/ListaFF1.h"
#include "listings/ListaFF2.h"
#include "listings/Tabel5.h"
#include "params/Cuantum.h"
#include "platform/Desktop.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "sheets/FisaInLucru.h"
#include "sheets/RecordAngajator.h"
#include "sheets/RecordDed.h"
#include "sheets/RecordFF1.h"
#include "sheets/RecordFF2.h"

namespace {

// True when the reader of the line's kind takes it.
bool Citit(char tip, std::string_view record) {
  using namespace fisc;
  try {
    if (tip == '1') {
      CitesteFF1(record);
    } else if (tip == '2') {
      CitesteFF2(record);
    } else if (tip == 'D') {
      TabelDed t;
      CitesteRandDed(record, t, 1);
    } else if (tip == 'R') {
      CitesteAngajator(record);
    } else {
      return false;
    }
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

template <typename F>
void Incearca(F&& f) {
  try {
    f();
  } catch (const fisc::RuntimeFailure&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace fisc;
  std::string ff1, ff2, deduceri, repfisc;
  std::vector<std::string> sheets1, sheets2;
  for (std::string_view l : fuzz::Linii(fuzz::Text(data, size))) {
    if (l.empty() || !Citit(l[0], l.substr(1))) continue;
    std::string_view record = l.substr(1);
    std::string linie = std::string(record) + "\r\n";
    if (l[0] == '1') {
      ff1 += linie;
      sheets1.emplace_back(record);
    } else if (l[0] == '2') {
      ff2 += linie;
      sheets2.emplace_back(record);
    } else if (l[0] == 'D') {
      deduceri += linie;
    } else {
      repfisc += linie;
    }
  }
  fuzz::ScrieFisier("Ff1.txt", ff1);
  fuzz::ScrieFisier("Ff2.txt", ff2);
  fuzz::ScrieFisier("Deduceri.txt", deduceri);
  fuzz::ScrieFisier("Repfisc.txt", repfisc);

  Files files(fuzz::Director());
  ParametriAn parametri;
  parametri.AnFiscal = "2002";
  parametri.DedLuna[12] = 1600000;
  FisaInLucru fisa;
  StareListare stare;
  stare.Exemplar = "angajat";
  Incearca([&] {
    LineWriter out = files.Write("ListF1.txt");
    ListaFF1 lista(files, out, parametri, fisa, stare, "NUME", "FUNCTIE");
    for (const std::string& r : sheets1) {
      fisa.CodCurent = r.substr(0, r.find(','));
      lista.ListF1(r);
    }
    out.Close();
  });
  Incearca([&] {
    LineWriter out = files.Write("ListF2.txt");
    ListaFF2 lista(files, out, parametri, stare, "NUME", "FUNCTIE");
    for (const std::string& r : sheets2) lista.ListF2(r);
    out.Close();
  });
  std::string cod;
  for (int continut = 0; continut < 5; ++continut) {
    StareListare listare;
    CereriBorderou c;
    c.Continut = continut;
    c.AnFiscal = "2002";
    Incearca([&] { ScrieBorderou(files, listare, cod, c); });
  }
  for (bool primul : {true, false}) {
    StareListare listare;
    Incearca([&] {
      ScrieCentralizator(files, listare, cod, CereriCentralizator{0, primul, "2002"});
    });
  }
  Desktop desktop;
  Form form(desktop, "Intro", "");
  Control& lista = form.Add(ControlKind::ComboBox, "Combo1").SetSorted(true);
  StareListare listare;
  Incearca([&] { ScrieTabel5(files, lista, listare, cod, "2002"); });
  return 0;
}
