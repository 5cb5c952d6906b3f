#include "sheets/ListaFise.h"

#include "records/CititorCampuri.h"

namespace fisc {

void AdaugaFise(Control& lista, const Files& files, std::string_view fisier,
                std::string_view sufix) {
  LineReader in = files.Read(fisier);
  std::string linie, intrare;
  while (in.Next(linie)) {
    CititorCampuri c(linie);
    std::string_view cod = c.Camp(delim::BareText);
    std::string_view nume = c.Camp(delim::Text);
    std::string_view prenume = c.Camp(delim::Text);
    intrare.assign(nume).append(" ").append(prenume).append("--").append(cod).append(sufix);
    lista.AddItem(intrare);
  }
}

std::optional<std::string> CodulDinLista(std::string_view intrare) {
  std::size_t inceput = intrare.find("--");
  if (inceput == std::string_view::npos) return std::nullopt;
  std::size_t capat = intrare.find("--FF", inceput + 2);
  if (capat == std::string_view::npos) return std::nullopt;
  return std::string(intrare.substr(inceput + 2, capat - inceput - 2));
}

}  // namespace fisc
