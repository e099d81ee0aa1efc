#include "app/SampleTasks.h"

#include <QDate>

#include "app/Insert.h"
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

  void year(int y) {
    for (QDate day(y, 1, 1); day.year() == y; day = day.addDays(1)) ordinary(day);
    for (const Feast& f : FEASTS) add(text::Date{y, f.month, f.day}, f.task);
  }

 private:
  void ordinary(const QDate& day) {
    const bool course = day.month() < 6 || day.month() > 9;
    const bool first = day.day() <= 7;
    const int weekday = day.dayOfWeek();
    if (course && weekday == Qt::Saturday) add(day, CATECHESIS);
    if (course && weekday == Qt::Friday) add(day, CONFIRMATION);
    if (course && weekday == Qt::Friday && !first) add(day, REHEARSAL);
    if (first && weekday == Qt::Thursday) add(day, CARITAS);
    if (first && weekday == Qt::Friday) add(day, ADORATION);
    if (first && weekday == Qt::Monday && day.month() % 3 == 1) add(day, COUNCIL);
  }

  void add(const QDate& day, const Task& task) {
    add(text::Date{day.year(), day.month(), day.day()}, task);
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
  Agenda(connection).year(year);
}

}  // namespace fidaleon::app
