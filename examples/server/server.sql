-- The inventory of the example server: what is installed, where the files are,
-- which devices there are. Plain INSERT statements; the tables are created first
-- (standalone/schema.sql describes every column). Edit and try again.

-- ---------------------------------------------------------------------------
-- Installed device types, in the order of the registry. Type ids starting with
-- 1 are datacom, 2 access, 3 transport, 4 microwave; 5001 is classified nowhere.
-- ---------------------------------------------------------------------------

-- Two versions of one type share one file and one place in the store; the version
-- with "_telnet" in it is the telnet variant and has a place and a file of its own.
INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  ( 1, 'LX 2400/S',      'V3.7',           1001, 1, 1, 1, 'LX',       'campus switch',                 'CLI'),
  ( 2, 'LX 2400/S',      'V3.8',           1001, 2, 1, 1, 'LX',       'campus switch',                 'CLI'),
  ( 3, 'LX 2400/S',      'V3.7_telnet',    1001, 3, 1, 1, 'LX',       'campus switch over telnet',     'Telnet'),
  ( 4, 'RX 7600+',       'R12',            1002, 1, 1, 1, 'RX',       'core router',                   'CLI'),
  ( 5, 'RX 7600+',       'R12_telnet',     1002, 2, 1, 1, 'RX',       'core router over telnet',       'Telnet'),
  ( 6, 'RX 900\E',       'R9',             1003, 1, 0, 1, 'RX',       'branch router',                 'SNMP');

-- The file of this one was cut short on its way here: it is reported and skipped.
INSERT INTO device_type (position, name, version, type_id, version_id, support_backup, series, description, protocol) VALUES
  ( 7, 'RX 300',         'R3',             1004, 1, 1, 'RX',       'access router',                      'SNMP');

INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  ( 8, 'Fjord-DC 32',    'F2.1',           1005, 1, 1, 1, 'Fjord',    'data centre switch',            'CLI');

-- Served by the common file (config_file_type 1).
INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type, support_backup, series, description, protocol) VALUES
  ( 9, 'NetEdge 5',      'N1',             1006, 1, 1, 1, 'NetEdge',  'customer gateway',              'SNMP'),
  (10, 'SW-100',         'S4',             1007, 1, 1, 1, 'SW',       'desktop switch',                'SNMP');

-- Capacity-capable: the three flags are all 1. sys_oid selects the entry of the
-- capacity document.
INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type, sys_oid, support_upgrade, support_capacity, capacity_per_version, support_backup, series, description, protocol) VALUES
  (11, 'Quill C4',       'V4',             1008, 1, 1, '1.3.6.1.4.1.32473.4.4', 1, 1, 1, 1, 'Quill', 'aggregation switch, small', 'SNMP'),
  (12, 'Quill C8',       'V8',             1009, 1, 1, '1.3.6.1.4.1.32473.4.8', 1, 1, 1, 1, 'Quill', 'aggregation switch, large', 'SNMP');

INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  (13, 'OLT-880',        'A2.4',           2001, 1, 1, 1, 'OLT',      'optical line terminal',         'SNMP'),
  (14, 'OLT-220 Mini',   'A1.0',           2002, 1, 0, 1, 'OLT',      'cabinet line terminal',         'SNMP'),
  (15, 'Lantern 16',     'L5',             2003, 1, 1, 1, 'Lantern',  'optical distribution shelf',    'SNMP'),
-- Has no file of its own name; served by the file of its telnet twin (below).
  (16, 'Borealis 9',     'B9.2',           3001, 1, 1, 1, 'Borealis', 'optical transport node',        'TL1'),
  (17, 'Borealis 12/24', 'B12.0',          3002, 1, 1, 1, 'Borealis', 'optical transport node, large', 'TL1'),
  (18, 'MW-Relay 30+',   'M3',             4001, 1, 1, 1, 'MW-Relay', 'microwave radio',               'SNMP'),
-- Neither its own file nor its twin's is there: it is reported and skipped.
  (19, 'MW-Relay 60',    'M6',             4002, 1, 1, 1, 'MW-Relay', 'microwave radio, split mount',  'SNMP'),
-- Version name and type name are equal: not managed per version, never "_telnet".
  (20, 'Nubo Gauge 3',   'Nubo Gauge 3',   5001, 1, 0, 1, 'Nubo',     'remote meter',                  'CoAP');

-- ---------------------------------------------------------------------------
-- The file of each type that has one of its own. File names replace each blank,
-- "+", "\" and "/" of the type name by "_". Keys with "_telnet" are asked for by
-- telnet variants, and by types whose own file is missing.
-- ---------------------------------------------------------------------------
INSERT INTO config_file (device_type, path) VALUES
  ('LX 2400/S',          'common/dc/conf/dc/devtype_xmlconf/LX_2400_S_ServerConfiguration.xml'),
  ('LX 2400/S_telnet',   'common/dc/conf/dc/devtype_xmlconf/LX_2400_S_telnet_ServerConfiguration.xml'),
  ('RX 7600+',           'common/dc/conf/dc/devtype_xmlconf/RX_7600__ServerConfiguration.xml'),
  ('RX 7600+_telnet',    'common/dc/conf/dc/devtype_xmlconf/RX_7600__telnet_ServerConfiguration.xml'),
  ('RX 900\E',           'common/dc/conf/dc/devtype_xmlconf/RX_900_E_ServerConfiguration.xml'),
  ('RX 300',             'common/dc/conf/dc/devtype_xmlconf/RX_300_ServerConfiguration.xml'),
  ('Fjord-DC 32',        'common/dc/conf/dc/devtype_xmlconf/Fjord-DC_32_ServerConfiguration.xml'),
  ('OLT-880',            'common/dc/conf/dc/devtype_xmlconf/OLT-880_ServerConfiguration.xml'),
  ('OLT-220 Mini',       'common/dc/conf/dc/devtype_xmlconf/OLT-220_Mini_ServerConfiguration.xml'),
  ('Lantern 16',         'common/dc/conf/dc/devtype_xmlconf/Lantern_16_ServerConfiguration.xml'),
  ('Borealis 9',         'common/dc/conf/dc/devtype_xmlconf/Borealis_9_ServerConfiguration.xml'),        -- not there
  ('Borealis 9_telnet',  'common/dc/conf/dc/devtype_xmlconf/Borealis_9_telnet_ServerConfiguration.xml'),
  ('Borealis 12/24',     'common/dc/conf/dc/devtype_xmlconf/Borealis_12_24_ServerConfiguration.xml'),
  ('MW-Relay 30+',       'common/dc/conf/dc/devtype_xmlconf/MW-Relay_30__ServerConfiguration.xml'),
  ('MW-Relay 60',        'common/dc/conf/dc/devtype_xmlconf/MW-Relay_60_ServerConfiguration.xml'),        -- not there
  ('MW-Relay 60_telnet', 'common/dc/conf/dc/devtype_xmlconf/MW-Relay_60_telnet_ServerConfiguration.xml'), -- nor this
  ('Nubo Gauge 3',       'common/dc/conf/dc/devtype_xmlconf/Nubo_Gauge_3_ServerConfiguration.xml');

-- A separate check file takes the place of the CheckOperations section.
INSERT INTO check_file (device_type, path, report_type) VALUES
  ('LX 2400/S_telnet',   'common/dc/conf/dc/check/LX_2400_S_telnet_check.xml', 1);

-- ---------------------------------------------------------------------------
-- Classification. Together with a device's own columns it decides whether the
-- device is managed over telnet; the devices below show every way it can go.
-- ---------------------------------------------------------------------------
INSERT INTO device_class (type_id, domain, is_snmp, is_v3r7, compatible_type_id) VALUES
  (1001, 2, 0, 1, NULL),   -- LX 2400/S: asks for the telnet capability
  (1002, 2, 0, 0, NULL),   -- RX 7600+: neither SNMP nor V3R7
  (1003, 2, 1, 1, NULL),
  (1004, 2, 1, 1, NULL),
  (1005, 2, 0, 1, 1001),   -- Fjord-DC 32: compatible with the LX 2400/S
  (1006, 2, 1, 0, NULL),   -- NetEdge 5: SNMP
  (1007, 2, 1, 1, NULL),
  (1008, 2, 1, 1, NULL),
  (1009, 2, 1, 1, NULL),
  (2001, 1, 1, 0, NULL),
  (2002, 1, 1, 0, NULL),
  (2003, 1, 1, 0, NULL),
  (3001, 3, 0, 0, NULL),
  (3002, 3, 0, 0, NULL),
  (4001, 4, 1, 0, NULL),
  (4002, 4, 1, 0, NULL);

INSERT INTO telnet_support (type_id, telnet_capability) VALUES
  (1001, 'console'),
  (1001, 'console-v2');

-- ---------------------------------------------------------------------------
-- Devices.
-- ---------------------------------------------------------------------------
INSERT INTO device (device_id, name, type_id, version_id, ip_address, login_state, connect_state, telnet_capability) VALUES
--                                                                        managed over telnet?
  ( 101, 'lx-hall-a',      1001, 1, '192.0.2.11',   0, 0, 'console'),    -- yes: the capability is supported
  ( 102, 'lx-hall-b',      1001, 1, '192.0.2.12',   0, 0, 'none'),       -- no: the capability is not
  ( 103, 'lx-lab-login5',  1001, 2, '192.0.2.13',   5, 1, ''),           -- yes: the login state decides first
  ( 104, 'lx-lab-login6',  1001, 2, '192.0.2.14',   6, 0, ''),           -- yes: so does this one
  ( 105, 'lx-up',          1001, 2, '192.0.2.15',   0, 1, 'console'),    -- no: by its connection state
  ( 106, 'lx-syncing',     1001, 2, '192.0.2.16',   0, 2, 'console'),    -- no: likewise
  ( 107, 'edge-17',        1006, 1, '192.0.2.17',   0, 0, 'console'),    -- no: managed over SNMP
  ( 108, 'rx-münchen',     1002, 1, '192.0.2.18',   0, 0, ''),           -- yes: neither SNMP nor V3R7
  ( 109, 'fjord-1',        1005, 1, '192.0.2.19',   0, 0, ''),           -- yes: stands for another type
  (4026531839, 'invalid',  1001, 1, '',             5, 0, 'console'),    -- no: this number means "no device"
  ( 201, 'olt-大阪-1',     2001, 1, '198.51.100.1', 5, 0, ''),           -- no: not datacom
  ( 202, 'olt-cabinet',    2002, 1, '198.51.100.2', 0, 0, ''),           -- no: not datacom
  ( 301, 'узел-север',     3002, 1, '198.51.100.3', 0, 0, ''),           -- no: not datacom
  ( 401, 'mw-Πάρνηθα',     4001, 1, '198.51.100.4', 0, 0, ''),           -- no: not datacom
  ( 402, 'mw-hill',        4002, 1, '198.51.100.5', 0, 0, ''),           -- no; and its type has no configuration
  ( 501, 'meter-0001',     5001, 1, '',             0, 0, ''),           -- no: the type is not classified
  ( 901, 'left-over',      9999, 1, '203.0.113.9',  0, 0, '');           -- its type is not installed

INSERT INTO device (device_id, name, type_id, version_id, ip_address, soft_version, patch_version) VALUES
  ( 601, 'quill-a', 1008, 1, '203.0.113.1', 'V4.2', ''),
  ( 602, 'quill-b', 1008, 1, '203.0.113.2', 'V5.0', ''),
  ( 603, 'quill-c', 1008, 1, '203.0.113.3', 'V4.2', 'P03'),
  ( 604, 'quill-d', 1008, 1, '203.0.113.4', 'V5.0', 'P01'),
  ( 605, 'quill-e', 1008, 1, '203.0.113.5', 'V5.1', ''),
  ( 606, 'quill-f', 1009, 1, '203.0.113.6', '',     '');

-- ---------------------------------------------------------------------------
-- Capacity. Five versions of the Quill C4 are in service. Those with full_config 1
-- have the whole configuration; the others are cut down by a document of their own.
-- What comes out is two configurations: V4.2 and V4.2 P03 share one, the rest the
-- other. The Quill C8 has no version information and keeps the common file as it is.
-- ---------------------------------------------------------------------------
INSERT INTO version_in_service (position, device_type, device_type_version, soft_version, patch_version) VALUES
  (1, 'Quill C4', 'V4', 'V4.2', ''),
  (2, 'Quill C4', 'V4', 'V5.0', ''),
  (3, 'Quill C4', 'V4', 'V4.2', 'P03'),
  (4, 'Quill C4', 'V4', 'V5.0', 'P01'),
  (5, 'Quill C4', 'V4', 'V5.1', '');

INSERT INTO capacity (position, device_type, device_type_version, soft_version, patch_version, full_config) VALUES
  (1, 'Quill C4', 'V4', 'V4.2', '',    0),   -- Quill_C4_V4.2_ServerConfiguration.xml
  (2, 'Quill C4', 'V4', 'V4.2', 'P03', 0),   -- Quill_C4_V4.2_P03_ServerConfiguration.xml
  (3, 'Quill C4', 'V4', 'V5.0', '',    1),
  (4, 'Quill C4', 'V4', 'V5.0', 'P01', 0),   -- Quill_C4_V5.0_P01_ServerConfiguration.xml
  (5, 'Quill C4', 'V4', 'V5.1', '',    1);

-- ---------------------------------------------------------------------------
-- Server settings.
-- ---------------------------------------------------------------------------

-- 1 or 2: in-service upgrade is offered, and with it the menu entry GetWeakBd.
INSERT INTO setting (name, value) VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '1');

-- 1: a type with a file below xml/access_snmp/fixedcheck takes its checks from there.
INSERT INTO config_item (section, key, value) VALUES ('DC', 'FIXED_CHECK_ITEM', 1);

-- 1: program files (option PROGFILE with the number 15) are offered for backup.
INSERT INTO resource (key, value) VALUES ('BACKUP_PROGRAM_SUPPORT', '1');

-- Where the other files are. These are the values that hold without any row, too.
-- They are joined as they stand, so those that name a folder end in "/".
INSERT INTO environment (name, value) VALUES
  ('APP_ROOT', '${ROOT}/'),
  ('ENV_ROOT', '${ROOT}/'),
  ('OSS_LANG', 'en_US/'),       -- also here: ja_JP/
  ('XML_PATH', '${ROOT}/xml');
