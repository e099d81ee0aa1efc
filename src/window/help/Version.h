#pragma once

namespace fidaleon::app {

/// Of the program, "0.1.0".
const char* version();

/// What the program is put together from, with the licence of each.
struct Library {
  const char* name;
  const char* licence;
  const char* what;  // it is there for
};
inline constexpr const char* LICENCE = "GPL-3.0-or-later";
inline constexpr Library LIBRARIES[] = {
    {"Qt 6", "LGPL-3.0-only", "ventanas, impresión y PDF"},
    {"SQLite", "dominio público", "el fichero de la parroquia"},
    {"libpq", "PostgreSQL", "la parroquia en un servidor"},
    {"libsecret", "LGPL-2.1-or-later", "contraseñas de los servidores"},
    {"ICU", "Unicode-3.0", "el orden y las letras del español"},
    {"Zstandard", "BSD-3-Clause", "copias comprimidas"},
    {"qpdf", "Apache-2.0", "documentos para archivar"},
    {"libzip", "BSD-3-Clause", "hojas de cálculo"},
    {"JSON for Modern C++", "MIT", "ficheros de datos"},
    {"Linux Libertine", "OFL-1.1", "letra de los documentos"},
    {"DejaVu", "Bitstream-Vera", "letra de los documentos"},
};

}  // namespace fidaleon::app
