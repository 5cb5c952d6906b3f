#include "tax/Impozit.h"

#include <cmath>

#include "platform/Failure.h"
#include "records/Numere.h"

namespace fisc {

namespace {

const RandImpozit& Rand(const TabelImpozit& tabel, std::size_t r) {
  if (r >= tabel.size()) Fail(err::SubscriptOutOfRange);
  return tabel[r];
}

// A comparison with a null cell is not true, so the walk stops on it.
bool LessThan(double x, const std::optional<double>& cell) { return cell && x < *cell; }

double Number(const std::optional<double>& cell) {
  if (!cell) Fail(err::InvalidUseOfNull);
  return *cell;
}

}  // namespace

double ImpozitLuna(short& luna, double& suma, const TabelImpozit& tabel) {
  if (suma < 0) suma = 0;
  // The limits of the table in force descend from its first row.
  std::size_t r = RandulLunii(tabel, luna);
  while (LessThan(suma, Rand(tabel, r)[1])) ++r;
  const RandImpozit& rand = tabel[r];
  // The last three digits of the base never count.
  double trunchiat = std::floor(suma / 1000) * 1000;
  double impozit = Number(rand[3]) + (Number(rand[4]) / 100) * (trunchiat - Number(rand[1]) + 1);
  return Rotunjeste(impozit);
}

}  // namespace fisc
