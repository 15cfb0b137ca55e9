#include "business/books.h"

#include <span>

namespace grapplemont {

namespace {

long long Sum(const MonthBooks& books, std::span<const Book> of) {
  long long sum = 0;
  for (const Book& book : of) sum += books.*book.Total;
  return sum;
}

}  // namespace

long long TotalIn(const MonthBooks& books) {
  return Sum(books, kIncome);
}

long long TotalOut(const MonthBooks& books) {
  return Sum(books, kOutgoings);
}

long long Balance(const MonthBooks& books) {
  return TotalIn(books) - TotalOut(books);
}

}  // namespace grapplemont
