#pragma once

#include <array>

#include "records/fields/companies.h"

namespace grapplemont {

/// One of the nine books of a month.
struct Book {
  const char* Title;
  Cash MonthBooks::*Total;  // dollars
};

// In the order in which they are read.
inline constexpr std::array<Book, 4> kIncome = {{{"Ticket sales", &MonthBooks::TicketIncome},
                                                 {"Merchandise", &MonthBooks::MerchIncome},
                                                 {"Pay-per-view", &MonthBooks::PpvIncome},
                                                 {"Sponsors", &MonthBooks::SponsorIncome}}};
inline constexpr std::array<Book, 5> kOutgoings = {
    {{"Workers' wages", &MonthBooks::WrestlerWages},
     {"Staff wages", &MonthBooks::StaffWages},
     {"Production", &MonthBooks::ProductionCost},
     {"Advertising", &MonthBooks::AdvertisingCost},
     {"Cost of merchandise", &MonthBooks::MerchCost}}};

// Sums of a month in dollars.
long long TotalIn(const MonthBooks& books);
long long TotalOut(const MonthBooks& books);
/// In less out; below 0 for a loss.
long long Balance(const MonthBooks& books);

}  // namespace grapplemont
