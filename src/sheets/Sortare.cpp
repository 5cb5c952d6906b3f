#include "sheets/Sortare.h"

#include "platform/Control.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "sheets/FisiereSet.h"

namespace fisc {

namespace {

// The text from `start` up to the next "#"; `start` moves onto that "#".
std::string_view PanaLaDiez(std::string_view record, std::size_t& start) {
  std::size_t diez = start < record.size() ? record.find('#', start) : std::string_view::npos;
  if (diez == std::string_view::npos) Fail(err::InvalidCall);
  std::string_view text = record.substr(start, diez - start);
  start = diez;
  return text;
}

}  // namespace

std::string CheieSortare(std::string_view record) {
  std::size_t virgula = record.find(',');
  // No comma reads as position 0, so the name is looked for from the second byte on.
  std::size_t start = virgula == std::string_view::npos ? 1 : virgula + 2;
  std::string cheie(PanaLaDiez(record, start));
  start += 3;
  cheie += ' ';
  cheie += PanaLaDiez(record, start);
  return cheie;
}

void SorteazaAlfabetic(Files& files, Control& lista, std::string_view sursa,
                       std::string_view tinta) {
  lista.Clear();
  {
    LineReader in = files.Read(sursa);
    std::string line, item;
    while (in.Next(line)) {
      item = CheieSortare(line);
      item += "$$";
      item += line;
      item += '@';
      lista.AddItem(item);
    }
  }
  // Through the work file, so that a copy the listings read is never half written.
  LineWriter out = files.Write(fisier::Temporar);
  for (const std::string& item : lista.Items()) {
    std::size_t dolari = item.find("$$");
    std::size_t aron = item.find('@', dolari + 2);
    out.Line(std::string_view(item).substr(dolari + 2, aron - dolari - 2));
  }
  out.Close();
  files.Replace(fisier::Temporar, tinta);
  // The items hold every record of the file; they are of no use once written.
  lista.Clear();
}

void PregatesteSortare(Files& files, Control& lista, bool bifat) {
  files.DeleteIfExists(fisier::Ff1Sort1);
  files.DeleteIfExists(fisier::Ff2Sort1);
  if (!bifat) return;
  if (files.Exists(fisier::Ff1)) SorteazaAlfabetic(files, lista, fisier::Ff1, fisier::Ff1Sort1);
  if (files.Exists(fisier::Ff2)) SorteazaAlfabetic(files, lista, fisier::Ff2, fisier::Ff2Sort1);
}

}  // namespace fisc
