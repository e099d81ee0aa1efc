// rooms: app support store
// The list of the census in the main window with 100,000 persons: read, and filtered as one types.

#include <QApplication>

#include "benches/Bench.h"
#include "benches/PeopleWorld.h"
#include "catalogue/NodeView.h"
#include "core/contract/CcNodos.h"
#include "window/RowsFilter.h"
#include "window/RowsModel.h"

namespace {

using namespace fidaleon;

/// The statement alone, every value fetched: what the list cannot be faster than.
void readRows(bench::PeopleWorld& world, const app::NodeView& node) {
  std::size_t letters = 0;
  for (auto rows = world.connection->Execute(node.node.SQLSelect); !rows.EOF_(); rows.MoveNext())
    for (int f = 0; f < static_cast<int>(rows.FieldCount()); ++f)
      letters += rows.Fields(f).Value().text().size();
  if (letters == 0) std::printf("la lista está vacía\n");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  bench::PeopleWorld world(bench::PERSONS);
  const app::NodeView& node = *app::findNode(CcNodos::PADRON);
  app::RowsModel rows;
  bench::ratio("lista del padrón de 100.000 personas",
               bench::inTurn(
                   3, [&] { rows.load(*world.connection, node); }, [&] { readRows(world, node); }),
               1.5);
  if (rows.rowCount() != bench::PERSONS) std::printf("faltan personas\n");
  app::RowsFilter filter;
  filter.setSourceModel(&rows);
  const auto typed = [&](const char* text) {
    filter.setText(text);
    return filter.rowCount();
  };
  bench::within("la primera letra del filtro", bench::milliseconds(1, [&] { typed("b"); }), 300);
  bench::within("filtrarla por «begona munoz»",
                bench::milliseconds(5,
                                    [&] {
                                      if (typed("") != bench::PERSONS || typed("begona munoz") == 0)
                                        std::printf("el filtro no encuentra lo que debe\n");
                                    }),
                200);
}
