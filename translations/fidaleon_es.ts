<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="es">
<context>
    <name>QObject</name>
    <message>
        <source>&amp;Cancelar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia de la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se ha podido guardar una copia antes de continuar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

Si continúa sin ella, lo que va a hacer no podrá deshacerse. Puede cancelar ahora: no ha cambiado nada.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontinuar sin copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia hecha a mano</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leyendo y comprobando la copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo que hay ahora se guardará antes en otra copia, «%1», por si hubiera que deshacerlo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El archivo que no se puede abrir se conservará con otro nombre, por si alguien pudiera recuperar algo de él.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia quedará como estaba en ese momento. Se perderá todo lo que se ha inscrito, corregido o eliminado desde entonces en todos los puestos.

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volver a la copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volviendo a la copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ya hay otro equipo en la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>¿Está seguro de que el programa no está abierto en el otro equipo?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desde aquí no puede verse. Si el otro equipo se apagó de golpe, puede seguir en este. Si alguien trabaja en él, los dos estropearían los datos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hay nadie: &amp;abrir aquí</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volver a una copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentos PDF (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hay ninguna impresora instalada en este equipo.
Puede guardar el documento como PDF e imprimirlo en otro.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se sabe de qué edición es esta parroquia: falta el archivo «%1».

De la edición dependen las partidas y los documentos. ¿De cuál es?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia es de la edición de %1, pero el archivo «%2» dice otra: %3.

De la edición dependen las partidas y los documentos. ¿De cuál es?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edición de la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faltaba el archivo que dice la edición de la parroquia, o no se entendía. La parroquia es de la edición de %1, y el archivo se ha escrito de nuevo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>un libro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 libros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texto separado por punto y coma (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hoja de cálculo (*.ods)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se está guardando la lista…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> elegidas </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lista guardada en «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Están en «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Están en la carpeta «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ya hay un documento con ese nombre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En la carpeta ya está «%1».

¿Desea conservar los que ya están y guardar los nuevos con un número detrás, o sustituirlos?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Conservar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sustituir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ancelar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se han enviado a la impresora «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardar todos en un PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de los documentos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haciendo los documentos…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: hechos %L2 de %L3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentos de %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentos de las elegidas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ya hay una parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mientras tanto, en otro puesto se ha creado una parroquia en %1. No se ha cambiado nada en ella.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>¿Quiere trabajar con esa parroquia?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Abrir esa parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Elegir otra carpeta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creando la parroquia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se puede crear la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elija la carpeta de la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abrir una parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En la carpeta «%1» no hay ninguna parroquia.

Elija la carpeta que contiene el fichero «parroquia.fidaleon», o «parroquia.servidor» si los datos están en un servidor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copiando «%1» (filas: %L2)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparando «%1» (filas: %L2)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trasladar la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;La parroquia está trasladada.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se han comparado %1, una por una, y son iguales en los dos sitios.

%2La de «%3» sigue como estaba. Que nadie siga anotando en ella: lo que se anotara allí no estaría en la trasladada.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Abrir la trasladada</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Seguir en la de antes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;La parroquia no está trasladada.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

La de «%1» no ha cambiado, y puede seguir trabajando en ella. Lo que ya se ha copiado no hay que copiarlo otra vez.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seguir a&amp;hora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dejarlo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trasladando la parroquia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se ha dejado a medias.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Una parroquia trasladada</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Esta parroquia se trasladó a otro sitio.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El %1 se llevó a la carpeta «%2». Lo que se anote en la de «%3» no estará allí, ni lo de allí aquí.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abrir &amp;esta, la de antes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Salir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No volver a preguntarlo si abro esta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contraseña del servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contraseña de «%1» para entrar en %2&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Entrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entrando en %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El servidor la pide para abrir la parroquia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El servidor no admite la que este equipo conocía.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject::QObject</name>
    <message>
        <source>¿Volver a la copia del %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app</name>
    <message>
        <source>Solicitud de bautismo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bautismo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solicitud de confirmación</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmación</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expediente de matrimonio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrimonio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defunción</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colaborador</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Padrón</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nació el %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::AboutDialog</name>
    <message>
        <source>Acerca de Fidaleon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apartados</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El &amp;programa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bibliotecas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dónde están los datos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Guardar un informe para pedir ayuda…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cerrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fidaleon %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los registros sacramentales de la parroquia: bautismos, confirmaciones, matrimonios y defunciones, con el padrón y sus documentos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qué es</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edición: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edición</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licencia: %1.

Es software libre: puede usarlo, estudiarlo, cambiarlo y repartirlo según la Licencia Pública General de GNU, en su versión 3 o cualquiera posterior. Se ofrece SIN GARANTÍA de ninguna clase.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licencia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bibliotecas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Biblioteca</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Para qué</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Las copias que hace el programa:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los ajustes de esta cuenta:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo que se está escribiendo:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardar un informe para pedir ayuda</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textos (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El informe se ha guardado en «%1».

No lleva nombres ni datos de nadie. Puede abrirlo y leerlo antes de enviarlo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se ha podido guardar el informe: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::CopiesDialog</name>
    <message>
        <source>Volver a una copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Todavía no hay ninguna copia en esta parroquia: el programa guarda una antes de cada orden que elimina algo.
Con «Otra copia…» puede elegir una que haya guardado en otro sitio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El programa guarda una copia antes de cada orden que elimina algo. Elija aquella a la que quiere volver: la parroquia quedará como estaba entonces.

Se conservan las %1 últimas, y de las anteriores una por semana durante un año, mientras no ocupen más de %2 en total. Ahora ocupan %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volver a esta copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Otra copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cerrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fecha y hora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motivo de la copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tamaño</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elegir una copia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copias (*.copia *.fidaleon *.zst);;Todos los archivos (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::FamilyDialog</name>
    <message>
        <source>La persona y su familia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nombre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fecha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enlace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Por qué</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dónde está</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se está reuniendo…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ce&amp;rrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esta partida ya no está.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se puede reunir: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se ha reunido por los nombres, las fechas y los padres. Los enlaces dudosos hay que comprobarlos; nada de esto se guarda.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (ANULADA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dudoso</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1:&lt;/b&gt; %2.&lt;br&gt;&lt;b&gt;Por qué:&lt;/b&gt; %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::FirstRunWizard</name>
    <message>
        <source>Bienvenida a Fidaleon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Siguiente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Atrás</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crear la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estos datos aparecerán en las listas y en los documentos. Podrá corregirlos después.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Por ejemplo: San Esteban Protomártir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nombre de la parroquia:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elija la provincia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Provincia:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;oblación:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edición:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Usuario de este equipo:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los datos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con qué se empieza y dónde se guarda.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empezar con una parroquia &amp;vacía</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sin libros ni partidas, lista para trabajar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crear una parroquia de &amp;ejemplo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con libros de bautismo, confirmación y defunción, un padrón con sus colaboradores y sus grupos, y una agenda. Todas las personas son inventadas: sirve para aprender y probar sin miedo, no para trabajar de verdad. Sus documentos llevan la palabra MUESTRA.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los datos se guardarán en %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de los &amp;datos:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xaminar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si varios equipos van a trabajar a la vez, elija una carpeta compartida por todos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solo esta cuenta del equipo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>También las demás cuentas del grupo «%1»</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quién puede abrirlos:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de los datos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En esa carpeta ya hay una parroquia. ¿Desea abrirla?

Se abrirá tal como está, con su nombre y sus datos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>¿Desea cerrar esta ventana?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se perderá lo que ha escrito. No se ha creado ninguna parroquia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;errar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::FoundList</name>
    <message>
        <source>Lo que se ha encontrado</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::FoundModel</name>
    <message>
        <source> (ANULADA)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::HelpPage</name>
    <message>
        <source>Texto del manual</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::HelpWindow</name>
    <message>
        <source>Ayuda de Fidaleon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Atrás</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adelante</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Índice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buscar en todo el manual  (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buscar en el manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vaciar la búsqueda</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Índice del manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo encontrado</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se encuentra.
Pruebe con menos palabras, o con otra.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::ImportDialog</name>
    <message>
        <source>Traer los datos del programa anterior</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;1. Qué se trae</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;2. Nombres y fechas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;3. Eñes y acentos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ensayar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Traer…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cerrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuenta todo lo que hay, y no escribe nada</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Después de ensayarlo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;legir…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta con las tablas:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Institución de los libros:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabla</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formato de sus libros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parroquia de todos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nombre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diócesis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Población</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El programa anterior no guardaba la parroquia de cada partida. Márquela para que todas las de un registro lleven la que diga aquí.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formato de los libros de %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poner la parroquia en %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parroquia de %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diócesis de %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Población de %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El &amp;año 00 es el:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El programa anterior guardaba dos cifras del año: todas las fechas quedan en 19.., y solo el 00 puede ser otro. Con 20, el 2000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delante el nombre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delante los apellidos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nombres completos sin coma:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cómo se separan los nombres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ver la tabla de:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La que digan las tablas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>850 (MS-DOS, Europa occidental)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>437 (MS-DOS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1252 (Windows)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Página de códigos:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Las primeras filas de la tabla</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta con las tablas del programa anterior</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No está</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En la tabla</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esa tabla no está.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se lee con la página de códigos %1. Mire si las eñes y los acentos salen bien.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>¿Traer los datos a la parroquia?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se hará un libro antiguo de cada libro del programa anterior, también si ya se trajo otra vez. Antes se guarda una copia, a la que puede volver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Traer los datos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informe de la importación</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::MainWindow</name>
    <message>
        <source>Libro: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 de %L2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · %L1 filas elegidas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> y se siguen leyendo…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> y otras que no se han leído</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La lista no se ha podido leer.
Elíjala otra vez en el árbol.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Todavía no hay %1.
Pulse la tecla Insert para añadir.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Este libro todavía no tiene %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ninguna fila contiene «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Como al &amp;principio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardando antes una copia de la parroquia, por si hubiera que deshacerlo…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardando antes una copia de la parroquia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia de seguridad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copias (*.copia)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardando y comprobando la copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La copia se ha guardado y comprobado en «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ahora no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia está estropeada.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Una parte del archivo «%1» no se puede leer. No siga anotando: lo que se escriba ahora puede perderse.

Puede volver a una copia. El archivo estropeado se conservará con otro nombre, por si alguien pudiera recuperar algo de él.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volver a una copia…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia ya no está en su sitio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El archivo «%1» se ha borrado, se ha movido o se ha cambiado por otro mientras el programa lo tenía abierto. La lista muestra lo que había, pero no se puede guardar nada.

Si lo ha movido alguien, devuélvalo a su sitio y siga. Si no, abra de nuevo la carpeta: se verá lo que hay en ella, y podrá volver a una copia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;brir de nuevo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — Fidaleon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parroquia: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apartados</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elija un apartado del árbol.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtrar: escriba parte de un nombre, un apellido, una fecha…  (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vaciar el filtro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Muestra de nuevo las partidas de todos los libros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se está ordenando la lista…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lista</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Archivo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Registro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Documentos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;yuda</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Órdenes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Búsqueda</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parroquias &amp;recientes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un solo equipo a la vez</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los datos están en una unidad en la que un equipo no ve lo que otro tiene abierto. Para trabajar varios a la vez, tienen que estar en una carpeta de un servidor que guarde los bloqueos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usuario: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edición: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se está leyendo la lista…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::ManyDocumentsDialog</name>
    <message>
        <source>&amp;Documento:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Todos en un solo PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un PDF de &amp;cada uno, en una carpeta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En &amp;papel, por la impresora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se hacen:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hacerlos…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ancelar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::MoveDialog</name>
    <message>
        <source>Trasladar la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;De %1 a %2.&lt;/b&gt; Se copian todas las filas y se comparan una por una. La parroquia de ahora no cambia, y antes se guarda una copia de ella. Nadie más puede trabajar mientras dura; se puede dejar a medias y seguir otro día.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>un servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>un fichero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>un fichero de este equipo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hay un traslado a medias, del %1. Con las mismas señas se sigue donde se quedó.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trasladar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cance&amp;lar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xaminar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de la parroquia trasladada</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A la &amp;carpeta:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::OutcomeReport</name>
    <message>
        <source>Informe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se ha guardado en «%1».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cerrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Imprimir…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Guardar como…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardar el informe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textos (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se ha podido guardar: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::PasswordField</name>
    <message>
        <source>&amp;Recordar la contraseña en este equipo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contraseña</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con las demás contraseñas de su sesión, o en un archivo que solo puede leer su cuenta. Si no, se pide cada vez que se abre el programa.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contraseña del servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

Se usará mientras el programa esté abierto, y la próxima vez habrá que escribirla de nuevo.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::PreferencesDialog</name>
    <message>
        <source>Preferencias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apartados</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Libros y documentos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;ias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Aceptar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancelar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Usuario:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quién se lee en los demás equipos que tiene algo abierto. Si lo cambia, la parroquia se abre otra vez al aceptar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edición:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La diócesis: cambia algunos campos y el texto de los documentos, para todos los equipos. La parroquia se abre otra vez al aceptar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xaminar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinar la carpeta de la parroquia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Car&amp;peta de la parroquia:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La que se abre cada día. Si elige otra, se pasa a ella al aceptar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tamaño de la letra:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De todas las ventanas, desde que acepta.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El del sistema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 puntos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La tecla I&amp;ntro:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Al escribir partidas y fichas, desde la próxima que se abra. Si pasa de campo, se acepta con Ctrl + Intro.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pasa al campo siguiente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acepta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;mpresora:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La que se propone al imprimir, desde el próximo documento.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La del sistema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (ahora no está)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;stitución:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De qué institución es el encargado de abajo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encargado que &amp;firma:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El que proponen los certificados de esa institución, en todos los equipos, hasta que se elija otro al imprimir.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;olios de un libro, como mucho:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Al pasar de ese folio, las partidas avisan de que el libro está lleno. Es de este usuario, y cuenta desde la próxima partida.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sin límite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copias que &amp;hace el programa:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuántas de las últimas se conservan, en la carpeta «copias» de la parroquia; de las anteriores queda una por semana. Cuenta desde la próxima copia. Si trabajan varios equipos, ponga lo mismo en todos: vale la cifra más baja.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exa&amp;minar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinar la carpeta de sus copias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de las copias que hace &amp;usted:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dónde propone guardarlas «Archivo &gt; Copia de seguridad»: una memoria, otro equipo. Vacía, su carpeta personal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ninguno</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de las copias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escriba el nombre del usuario.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>El nombre del usuario no puede llevar el signo «\».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En «%1» no se puede guardar: la carpeta no existe, o no hay permiso. Si es una memoria, conéctela antes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>¿Cambiar la edición de la parroquia a %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Las partidas y los documentos serán los de esa diócesis, en todos los equipos. No se borra nada: lo escrito en campos que esa edición no tiene deja de verse, y vuelve con la edición de ahora.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;mbiar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La edición no se puede cambiar mientras alguien más trabaja en la parroquia:
%1

No se ha cambiado nada.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::PreviewDialog</name>
    <message>
        <source>Página del documento</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imprimir…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardar como PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anterior</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Siguiente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Última</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ampliación</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ajustar al ancho</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Página entera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cerrar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Página %L1 de %L2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Página %L1 de %L2…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparando las páginas…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imprimiendo…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardar como PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guardando el documento…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::RowsModel</name>
    <message>
        <source>Partida anulada: conserva su folio y su número.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::SearchBox</name>
    <message>
        <source>Buscar en todo  (Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busca en todos los registros, las solicitudes y el padrón: nombres, apellidos, padres, padrinos, años, libros y lugares (Ctrl+K)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buscar en todo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hay más: siga escribiendo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Siga escribiendo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se encuentra nada parecido.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se ha encontrado 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se han encontrado %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No se puede buscar: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Se está preparando la búsqueda (%1 %): aún no están todos.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::ServerDialog</name>
    <message>
        <source>Conectar con un servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Los datos de la parroquia están en un servidor. Quien lo lleva le habrá dado estas señas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Conectar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cance&amp;lar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparando este puesto…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;En %1 no hay todavía ninguna parroquia.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puede crear una parroquia nueva en esa base de datos.

Si lo que quiere es llevar a ella una que ya tiene, ábrala y elija «Archivo &gt; Trasladar la parroquia».</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;rear una nueva…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancelar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::ServerFields</name>
    <message>
        <source>Por ejemplo: archivo.diocesis.es</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solo si lo ha dado quien lleva el servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Servidor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;uerto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Base de datos:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usuar&amp;io:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontraseña:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certi&amp;ficado:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de este &amp;puesto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De este equipo: guarda la dirección del servidor y las copias que se hacen aquí</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prob&amp;ar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entra en el servidor y mira qué hay en él. No cambia nada.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinar…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinar: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificado de quien firma el del servidor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificados (*.crt *.pem);;Todos los archivos (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carpeta de este puesto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escriba el nombre del servidor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escriba el nombre de la base de datos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escriba el usuario del servidor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elija la carpeta de este puesto.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entrando en %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ha dejado de esperar al servidor.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::StartDialog</name>
    <message>
        <source>&lt;b&gt;¿Con qué parroquia quiere trabajar?&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parroquias recientes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abrir la &amp;elegida</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abre la parroquia elegida en la lista</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crear una parroquia nueva…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vacía, o de ejemplo para aprender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Abrir una parroquia que ya existe…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La de otro equipo en una carpeta compartida, o la de otra carpeta de este</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conectar con un ser&amp;vidor…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La parroquia que está, o va a estar, en un servidor PostgreSQL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Salir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cierra el programa</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fidaleon::app::TargetDialog</name>
    <message>
        <source>Guardar la lista</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
