#pragma once

#include "settlements/report_table.h"

namespace wayscribe {

class World;

// The number of shops of settlement n: shops 0..110 with a name, of the
// settlement filed in n's sector.
int settlementShopCount(const World &world, int n);

// The settlement list's columns ("Name", "Number", "Shops", "X", "Y"); a row
// is a settlement number. The name is shown as stored, numbers in plain
// decimal.
ReportTable settlementListTable(const World &world);

// List_Update_All of the settlement list: every settlement in use, in
// number order.
void List_Update_All(ReportTable &table, const World &world);

} // namespace wayscribe
