#include "locks/ServerTables.h"

namespace fidaleon::locks {

namespace {

// A desk is a row of bloqueos_puesto and, as long as it lives, a shared advisory lock with that
// number, which its link holds, and each transaction of its that stores. Who can have it alone
// knows that the desk is dead. Advisory lock 0 is the guard. "turno" counts what the desk has taken
// and given back: a desk that comes back and finds another number has lost something meanwhile. The
// tables are not for the time of a session alone: what a desk held when the server fell is still
// known when both are back, unless somebody else has taken it.
constexpr const char* TABLES = R"(
CREATE TABLE IF NOT EXISTS bloqueos_puesto (
  puesto integer GENERATED ALWAYS AS IDENTITY PRIMARY KEY,
  turno bigint NOT NULL DEFAULT 0,
  visto timestamptz NOT NULL DEFAULT now());
CREATE TABLE IF NOT EXISTS bloqueos (
  puesto integer NOT NULL,
  sesion integer NOT NULL,
  clase text COLLATE "C" NOT NULL,
  tabla text COLLATE "C" NOT NULL,
  registro text COLLATE "C" NOT NULL,
  linea text COLLATE "C" NOT NULL);
CREATE INDEX IF NOT EXISTS bloqueos_donde ON bloqueos (tabla, registro);
CREATE INDEX IF NOT EXISTS bloqueos_de ON bloqueos (puesto, sesion);
CREATE TABLE IF NOT EXISTS bloqueos_aviso (linea text NOT NULL);
CREATE UNLOGGED TABLE IF NOT EXISTS bloqueos_espera (
  puesto integer PRIMARY KEY,
  sesion integer NOT NULL,
  clase text COLLATE "C" NOT NULL,
  tabla text COLLATE "C" NOT NULL,
  registro text COLLATE "C" NOT NULL,
  linea text COLLATE "C" NOT NULL,
  desde timestamptz NOT NULL DEFAULT clock_timestamp(),
  hasta timestamptz NOT NULL);
GRANT SELECT, INSERT, UPDATE, DELETE
  ON bloqueos, bloqueos_puesto, bloqueos_aviso, bloqueos_espera TO PUBLIC;
)";

constexpr const char* COMING = R"(
CREATE OR REPLACE FUNCTION bloqueos_llegar() RETURNS integer LANGUAGE plpgsql AS $$
DECLARE
  p integer;
BEGIN
  DELETE FROM bloqueos_puesto x
    WHERE x.visto < now() - interval '7 days' AND pg_try_advisory_xact_lock(1331, x.puesto);
  DELETE FROM bloqueos b WHERE NOT EXISTS (SELECT FROM bloqueos_puesto x WHERE x.puesto = b.puesto);
  DELETE FROM bloqueos_espera w WHERE w.hasta < now() - interval '1 minute';
  INSERT INTO bloqueos_puesto DEFAULT VALUES RETURNING puesto INTO p;
  PERFORM pg_advisory_lock_shared(1331, p);
  EXECUTE 'LISTEN bloqueos_' || p;
  RETURN p;
END $$;

CREATE OR REPLACE FUNCTION bloqueos_irse(p integer) RETURNS void LANGUAGE sql AS $$
  DELETE FROM bloqueos WHERE puesto = p;
  DELETE FROM bloqueos_espera WHERE puesto = p;
  DELETE FROM bloqueos_puesto WHERE puesto = p;
$$;
)";

constexpr const char* SHUTTING = R"(
CREATE OR REPLACE FUNCTION bloqueos_cerrar() RETURNS integer LANGUAGE plpgsql AS $$
BEGIN
  PERFORM pg_advisory_lock(1331, 0);
  DELETE FROM bloqueos_aviso;
  RETURN pg_backend_pid();
END $$;

CREATE OR REPLACE FUNCTION bloqueos_abrir() RETURNS void LANGUAGE plpgsql AS $$
BEGIN
  DELETE FROM bloqueos_aviso;
  PERFORM pg_advisory_unlock(1331, 0);
END $$;
)";

// Who stands in the way of the session: by a whole table that is wanted, by one that is held, by a
// record.
constexpr const char* IN_THE_WAY = R"(
CREATE OR REPLACE FUNCTION bloqueos_estorbos(p integer, s integer, clases text[], tablas text[],
                                             registros text[])
RETURNS TABLE (lugar bigint, puesto integer, fila tid, linea text) LANGUAGE sql STABLE AS $$
  WITH pedidos AS MATERIALIZED (
    SELECT * FROM unnest(clases, tablas, registros)
      WITH ORDINALITY AS u(clase, tabla, registro, lugar))
  SELECT x.lugar, b.puesto, b.ctid, b.linea FROM pedidos x JOIN bloqueos b ON b.tabla = x.tabla
    WHERE x.clase = 'T' AND (b.puesto, b.sesion) <> (p, s)
  UNION ALL
  SELECT x.lugar, b.puesto, b.ctid, b.linea
    FROM (SELECT tabla, min(lugar) AS lugar FROM pedidos WHERE clase <> 'T' GROUP BY tabla) x
    JOIN bloqueos b ON b.tabla = x.tabla AND b.registro = ''
    WHERE b.clase = 'T' AND (b.puesto, b.sesion) <> (p, s)
  UNION ALL
  SELECT x.lugar, b.puesto, b.ctid, b.linea
    FROM pedidos x JOIN bloqueos b ON b.tabla = x.tabla AND b.registro = x.registro
    WHERE x.clase IN ('R', 'r') AND b.clase IN ('R', 'r') AND (x.clase = 'R' OR b.clase = 'R')
      AND (b.puesto, b.sesion) <> (p, s)
$$;
)";

// Desks that are refused wait in line for a moment. Who asks again soon has kept its place, and
// what is given back goes to the first of those who wait right then: who is away keeps nobody out,
// and who could not have it yet keeps nobody from anything else.
constexpr const char* IN_LINE = R"(
CREATE OR REPLACE FUNCTION bloqueos_ponerse(p integer, s integer, c text, t text, r text, l text,
                                            plazo integer)
RETURNS void LANGUAGE sql AS $$
  INSERT INTO bloqueos_espera AS w (puesto, sesion, clase, tabla, registro, linea, hasta)
    VALUES (p, s, c, t, r, l, clock_timestamp() + plazo * interval '1 ms')
  ON CONFLICT (puesto) DO UPDATE
    SET sesion = s, clase = c, tabla = t, registro = r, linea = l, hasta = EXCLUDED.hasta,
        desde = CASE WHEN (w.clase, w.tabla, w.registro) = (c, t, r)
                          AND w.hasta > clock_timestamp() - interval '10 s'
                     THEN w.desde ELSE EXCLUDED.desde END
$$;

CREATE OR REPLACE FUNCTION bloqueos_antes(p integer, clases text[], tablas text[],
                                          registros text[])
RETURNS TABLE (lugar bigint, puesto integer, linea text) LANGUAGE plpgsql AS $$
DECLARE
  e record;
BEGIN
  FOR e IN SELECT w.*, u.lugar
    FROM bloqueos_espera w
    JOIN unnest(clases, tablas, registros) WITH ORDINALITY AS u(clase, tabla, registro, lugar)
      ON u.tabla = w.tabla AND (u.clase = 'T' OR w.clase = 'T'
        OR u.registro = w.registro AND u.clase IN ('R', 'r') AND w.clase IN ('R', 'r')
          AND (u.clase = 'R' OR w.clase = 'R'))
    WHERE w.puesto <> p AND w.hasta > clock_timestamp()
      AND w.desde < coalesce((SELECT x.desde FROM bloqueos_espera x
                              WHERE x.puesto = p AND x.hasta > clock_timestamp() - interval '10 s'),
                             'infinity')
    ORDER BY w.desde, u.lugar
  LOOP
    IF NOT EXISTS (SELECT FROM bloqueos_estorbos(e.puesto, e.sesion, ARRAY[e.clase],
                                                 ARRAY[e.tabla], ARRAY[e.registro])) THEN
      lugar := e.lugar;
      puesto := e.puesto;
      linea := e.linea;
      RETURN NEXT;
      RETURN;
    END IF;
  END LOOP;
END $$;
)";

// What is listed already comes without a line; without any line it is only asked. The dead keep
// nobody out, and learn it when they come back. The server never knows how many rows there are, and
// would rather read them all than use the index.
constexpr const char* TAKING = R"(
CREATE OR REPLACE FUNCTION bloqueos_anotar(p integer, s integer, t bigint, clases text[],
                                           tablas text[], registros text[], lineas text[])
RETURNS void LANGUAGE plpgsql AS $$
BEGIN
  UPDATE bloqueos_puesto SET turno = turno + 1, visto = now() WHERE puesto = p AND turno = t;
  IF NOT FOUND THEN RAISE EXCEPTION USING ERRCODE = 'FB001'; END IF;
  INSERT INTO bloqueos
    SELECT p, s, u.clase, u.tabla, u.registro, u.linea
    FROM unnest(clases, tablas, registros, lineas) AS u(clase, tabla, registro, linea)
    WHERE u.linea IS NOT NULL;
END $$;

CREATE OR REPLACE FUNCTION bloqueos_tomar(p integer, s integer, t bigint, plazo integer,
                                          clases text[], tablas text[], registros text[],
                                          lineas text[])
RETURNS TABLE (lugar bigint, linea text, espera boolean) LANGUAGE plpgsql
SET enable_seqscan = off SET enable_hashjoin = off SET enable_mergejoin = off AS $$
DECLARE
  e record;
  muertos integer[] := '{}';
BEGIN
  PERFORM pg_advisory_xact_lock(1331, 0);
  FOR e IN SELECT * FROM bloqueos_estorbos(p, s, clases, tablas, registros) x ORDER BY x.lugar LOOP
    IF e.puesto = ANY (muertos) THEN
      CONTINUE;
    ELSIF e.puesto <> p AND pg_try_advisory_xact_lock(1331, e.puesto) THEN
      muertos := muertos || e.puesto;
    ELSE
      lugar := e.lugar;
      linea := e.linea;
      espera := e.puesto <> p;
      EXIT;
    END IF;
  END LOOP;
  IF lugar IS NULL AND cardinality(lineas) > 0
      AND EXISTS (SELECT FROM bloqueos_espera w WHERE w.hasta > clock_timestamp()) THEN
    SELECT * INTO e FROM bloqueos_antes(p, clases, tablas, registros);
    IF FOUND THEN
      lugar := e.lugar;
      linea := e.linea;
      espera := true;
      PERFORM pg_notify('bloqueos_' || e.puesto, '');
    END IF;
  END IF;
  IF lugar IS NOT NULL THEN
    IF espera AND cardinality(lineas) > 0 THEN
      PERFORM bloqueos_ponerse(p, s, clases[lugar], tablas[lugar], registros[lugar],
                               lineas[lugar], plazo);
    END IF;
    RETURN NEXT;
    RETURN;
  END IF;
  IF cardinality(lineas) = 0 THEN RETURN; END IF;
  DELETE FROM bloqueos_espera w WHERE w.puesto = p;
  IF cardinality(muertos) > 0 THEN
    DELETE FROM bloqueos b USING bloqueos_estorbos(p, s, clases, tablas, registros) x
      WHERE b.ctid = x.fila AND x.puesto = ANY (muertos);
    UPDATE bloqueos_puesto SET turno = -1 WHERE puesto = ANY (muertos);
  END IF;
  PERFORM bloqueos_anotar(p, s, t, clases, tablas, registros, lineas);
END $$;

CREATE OR REPLACE FUNCTION bloqueos_poner(p integer, s integer, t bigint, clases text[],
                                          tablas text[], registros text[], lineas text[])
RETURNS void LANGUAGE plpgsql AS $$
BEGIN
  DELETE FROM bloqueos WHERE puesto = p AND sesion = s;
  PERFORM pg_notify('bloqueos_' || x.puesto, '') FROM (
    SELECT DISTINCT ON (w.tabla, w.registro) w.puesto FROM bloqueos_espera w
      WHERE w.hasta > clock_timestamp() ORDER BY w.tabla, w.registro, w.desde) x;
  PERFORM bloqueos_anotar(p, s, t, clases, tablas, registros, lineas);
END $$;
)";

constexpr const char* LOOKING = R"(
CREATE OR REPLACE FUNCTION bloqueos_sesiones(p integer, s integer)
RETURNS TABLE (puesto integer, sesion integer, linea text) LANGUAGE plpgsql AS $$
DECLARE
  muertos integer[];
BEGIN
  muertos := ARRAY(SELECT x.puesto FROM bloqueos_puesto x
    WHERE CASE WHEN x.puesto = p THEN false ELSE pg_try_advisory_xact_lock(1331, x.puesto) END);
  DELETE FROM bloqueos_puesto x WHERE x.puesto = ANY (muertos);
  DELETE FROM bloqueos b WHERE b.puesto = ANY (muertos);
  RETURN QUERY SELECT b.puesto, b.sesion, b.linea FROM bloqueos b
    WHERE (b.puesto, b.sesion) <> (p, s) ORDER BY b.puesto, b.sesion;
END $$;
)";

// Before something is stored, within its transaction: nobody takes the desk for dead until its end.
// Who has shut the place must still have it shut.
constexpr const char* KEEPING = R"(
CREATE OR REPLACE FUNCTION bloqueos_guardar(p integer, t bigint, guarda integer) RETURNS void
LANGUAGE plpgsql AS $$
BEGIN
  PERFORM pg_advisory_xact_lock_shared(1331, p);
  IF NOT EXISTS (SELECT FROM bloqueos_puesto WHERE puesto = p AND turno = t)
      OR guarda <> 0 AND NOT EXISTS (SELECT FROM pg_locks l WHERE l.pid = guarda
        AND l.locktype = 'advisory' AND l.classid = 1331 AND l.objid = 0 AND l.granted) THEN
    RAISE EXCEPTION USING ERRCODE = 'FB001';
  END IF;
END $$;

CREATE OR REPLACE FUNCTION bloqueos_volver(p integer, t bigint, sesiones integer[])
RETURNS boolean LANGUAGE plpgsql AS $$
BEGIN
  PERFORM pg_advisory_lock_shared(1331, p);
  EXECUTE 'LISTEN bloqueos_' || p;
  DELETE FROM bloqueos b WHERE b.puesto = p AND b.sesion <> ALL (sesiones);
  UPDATE bloqueos_puesto SET turno = t, visto = now() WHERE puesto = p;
  RETURN FOUND;
END $$;

CREATE OR REPLACE FUNCTION bloqueos_recobrar(p integer, s integer, lineas text[])
RETURNS boolean LANGUAGE plpgsql AS $$
BEGIN
  DELETE FROM bloqueos b WHERE b.puesto = p AND b.sesion = s AND b.linea <> ALL (lineas);
  RETURN (SELECT count(*) FROM bloqueos b WHERE b.puesto = p AND b.sesion = s) =
         cardinality(lineas);
END $$;
)";

}  // namespace

void prepareServer(store::Link& link) {
  link.run(std::string("BEGIN; SELECT pg_advisory_xact_lock(1331, 0); ") +
           "CREATE SCHEMA IF NOT EXISTS fidaleon; " + TABLES + COMING + SHUTTING + IN_THE_WAY +
           IN_LINE + TAKING + LOOKING + KEEPING + "COMMIT");
}

}  // namespace fidaleon::locks
