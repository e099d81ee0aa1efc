#include "sample/SampleTasks.h"

#include <chrono>

#include "parish/Insert.h"
#include "text/Dates.h"

namespace fidaleon::app {
namespace {

struct Task {
  const char* start;  // "HHmm"
  const char* end;
  const char* name;
  const char* description;
};

constexpr Task CATECHESIS{"1700", "1815", "Catequesis de comunión", "Primer y segundo año."};
constexpr Task CONFIRMATION{"1900", "2000", "Catequesis de confirmación", ""};
constexpr Task REHEARSAL{"2000", "2115", "Ensayo del coro", ""};
constexpr Task CARITAS{"1900", "2000", "Reunión de Cáritas", "Acogida, ropero y cuentas del mes."};
constexpr Task ADORATION{"1930", "2030", "Exposición del Santísimo", ""};
constexpr Task COUNCIL{"2030", "2200", "Consejo pastoral", "Con el orden del día en el tablón."};

struct Feast {
  int month;
  int day;
  Task task;
};
constexpr Feast FEASTS[] = {
    {1, 6, {"1200", "1300", "Misa de la Epifanía", ""}},
    {2, 2, {"1900", "2000", "Bendición de las candelas", ""}},
    {2, 3, {"1200", "1300", "Fiesta de San Blas", "Bendición de las gargantas."}},
    {5, 15, {"1200", "1400", "San Isidro", "Misa y procesión a las eras."}},
    {6, 24, {"1200", "1300", "San Juan", ""}},
    {8, 15, {"1200", "1400", "Fiesta de la Asunción", "Misa mayor y procesión."}},
    {11, 1, {"1700", "1800", "Responso en el cementerio", ""}},
    {12, 8, {"1200", "1300", "La Inmaculada", ""}},
    {12, 24, {"2330", "2359", "Misa del gallo", ""}},
};

class Agenda {
 public:
  explicit Agenda(store::Connection& connection) : con_(connection) {}

  void wholeYear(int y) {
    using namespace std::chrono;
    const sys_days end = year{y + 1} / January / 1;
    for (sys_days day = year{y} / January / 1; day < end; day += days{1}) ordinary(day);
    for (const Feast& f : FEASTS) add(text::Date{y, f.month, f.day}, f.task);
  }

 private:
  void ordinary(const std::chrono::sys_days& when) {
    using namespace std::chrono;
    const year_month_day date(when);
    const text::Date day{int(date.year()), int(unsigned(date.month())), int(unsigned(date.day()))};
    const bool course = day.month < 6 || day.month > 9;
    const bool first = day.day <= 7;
    const weekday weekday(when);
    if (course && weekday == Saturday) add(day, CATECHESIS);
    if (course && weekday == Friday) add(day, CONFIRMATION);
    if (course && weekday == Friday && !first) add(day, REHEARSAL);
    if (first && weekday == Thursday) add(day, CARITAS);
    if (first && weekday == Friday) add(day, ADORATION);
    if (first && weekday == Monday && day.month % 3 == 1) add(day, COUNCIL);
  }

  void add(const text::Date& day, const Task& task) {
    Insert("Tareas")
        .text("Fecha", text::toStored(day))
        .text("HoraInicio", task.start)
        .text("HoraFin", task.end)
        .text("Nombre", task.name)
        .text("Descripcion", task.description)
        .into(con_);
  }

  store::Connection& con_;
};

}  // namespace

void fillSampleTasks(store::Connection& connection, int year) {
  Agenda(connection).wholeYear(year);
}

}  // namespace fidaleon::app
