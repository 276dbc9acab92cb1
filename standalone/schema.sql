-- The inventory of a stand-alone server root: what the platform services answer
-- when the library runs outside the server.
--
-- A root holds either server.db (an SQLite database with at least these tables
-- and columns, opened read-only) or server.sql (plain INSERT statements; these
-- tables are created in memory first, then the statements run); server.db counts
-- when both are there. Every table must be there; any may be empty. Numbers are
-- 32-bit unless a comment says otherwise (ids unsigned), texts are UTF-8 without
-- NUL bytes, a row takes at most 16 KB. A path without a leading "/" starts at the
-- root.
--
-- A server.sql works on these tables only: INSERT, UPDATE, DELETE, SELECT and
-- BEGIN/COMMIT, with the plain functions for texts and numbers. A statement takes
-- at most 4 MB, and what it takes to compile and run is limited.

-- Installed device types, in registry order (position). The first five columns
-- are what most files need; the others have defaults.
CREATE TABLE device_type (
    position             INTEGER PRIMARY KEY,          -- registry order
    name                 TEXT    NOT NULL,             -- device type name
    version              TEXT    NOT NULL,             -- device type version; "_telnet" in it marks a telnet variant
    type_id              INTEGER NOT NULL DEFAULT 0,
    version_id           INTEGER NOT NULL DEFAULT 0,
    config_file_type     INTEGER NOT NULL DEFAULT 0,   -- 1: served by the common file
    sys_oid              TEXT    NOT NULL DEFAULT '',  -- selects the capacity entry
    support_upgrade      INTEGER NOT NULL DEFAULT 0,   -- these three at 1 make a capacity-capable type:
    support_capacity     INTEGER NOT NULL DEFAULT 0,   --
    capacity_per_version INTEGER NOT NULL DEFAULT 0,   --
    support_patch        INTEGER NOT NULL DEFAULT 0,
    support_backup       INTEGER NOT NULL DEFAULT 0,
    max_concurrency      INTEGER NOT NULL DEFAULT 0,
    dll_name             TEXT    NOT NULL DEFAULT '',
    series               TEXT    NOT NULL DEFAULT '',
    description          TEXT    NOT NULL DEFAULT '',
    protocol             TEXT    NOT NULL DEFAULT '',
    remark               TEXT    NOT NULL DEFAULT ''
) STRICT;

-- The server configuration file that the adapter answers with, by storage key
-- (a telnet variant stands under its name with "_telnet"). The file need not
-- exist. A key without a row is unknown to the adapter: result code 0x3B0F0001.
CREATE TABLE config_file (
    device_type TEXT PRIMARY KEY NOT NULL,
    path        TEXT NOT NULL
) STRICT;

-- The separate (telnet) check file of a type, by storage key. No row: no file.
CREATE TABLE check_file (
    device_type TEXT PRIMARY KEY NOT NULL,
    path        TEXT NOT NULL,
    report_type INTEGER NOT NULL DEFAULT 0             -- 0 none, 1 text, 2 summary
) STRICT;

-- Classification of device type ids. An id without a row: domain unknown, not
-- SNMP, not V3R7, compatible with itself.
CREATE TABLE device_class (
    type_id            INTEGER PRIMARY KEY,
    domain             INTEGER NOT NULL,               -- 1 access, 2 datacom, 3 transport, 4 microwave, 5 unknown
    is_snmp            INTEGER NOT NULL DEFAULT 0,     -- 0 or 1
    is_v3r7            INTEGER NOT NULL DEFAULT 0,     -- 0 or 1
    compatible_type_id INTEGER                         -- 16 bits; NULL: compatible with itself
) STRICT;

-- Which telnet capability texts make a device of a type telnet-managed.
CREATE TABLE telnet_support (
    type_id           INTEGER NOT NULL,
    telnet_capability TEXT    NOT NULL,
    PRIMARY KEY (type_id, telnet_capability)
) STRICT;

-- Managed devices. Type and version name come from the device_type row with the
-- same two ids; a device without such a row cannot be resolved.
CREATE TABLE device (
    device_id         INTEGER PRIMARY KEY,
    name              TEXT    NOT NULL DEFAULT '',
    type_id           INTEGER NOT NULL,
    version_id        INTEGER NOT NULL,
    ip_address        TEXT    NOT NULL DEFAULT '',
    soft_version      TEXT    NOT NULL DEFAULT '',     -- what it runs
    patch_version     TEXT    NOT NULL DEFAULT '',
    login_state       INTEGER NOT NULL DEFAULT 0,      -- 5 or 6: telnet-managed whatever follows
    connect_state     INTEGER NOT NULL DEFAULT 0,      -- 1 or 2: not telnet-managed
    telnet_capability TEXT    NOT NULL DEFAULT ''
) STRICT;

-- Software and patch versions in service of a device type, in this order.
CREATE TABLE version_in_service (
    position            INTEGER PRIMARY KEY,
    device_type         TEXT NOT NULL,                 -- storage key
    device_type_version TEXT NOT NULL,
    soft_version        TEXT NOT NULL,
    patch_version       TEXT NOT NULL DEFAULT ''
) STRICT;

-- Capacity records of a device type.
CREATE TABLE capacity (
    position            INTEGER PRIMARY KEY,
    device_type         TEXT NOT NULL,                 -- storage key
    device_type_version TEXT NOT NULL,
    soft_version        TEXT NOT NULL,
    patch_version       TEXT NOT NULL DEFAULT '',
    full_config         INTEGER NOT NULL DEFAULT 0     -- 0 or 1; 1: the whole own configuration applies
) STRICT;

-- Server settings by name.
CREATE TABLE setting (
    name  TEXT PRIMARY KEY NOT NULL,
    value TEXT NOT NULL
) STRICT;

-- Integer configuration items. 64-bit values keep their low 32 bits when read.
CREATE TABLE config_item (
    section TEXT    NOT NULL,
    key     TEXT    NOT NULL,
    value   INTEGER NOT NULL,
    PRIMARY KEY (section, key)
) STRICT;

-- Resource values by key.
CREATE TABLE resource (
    key   TEXT PRIMARY KEY NOT NULL,
    value TEXT NOT NULL
) STRICT;

-- Environment values. "${ROOT}" stands for the path of the server root without a
-- trailing separator. The library joins these without adding separators, so a
-- value carries its own. Defaults: APP_ROOT and ENV_ROOT "${ROOT}/", OSS_LANG
-- "en_US/", XML_PATH (the adapter's XML resources) "${ROOT}/xml".
CREATE TABLE environment (
    name  TEXT PRIMARY KEY NOT NULL,
    value TEXT NOT NULL
) STRICT;
