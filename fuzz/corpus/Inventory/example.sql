INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  ( 1, 'LX 2400/S',      'V3.7',           1001, 1, 1, 1, 'LX',       'campus switch',                 'SNMP'),
  ( 2, 'LX 2400/S',      'V3.8',           1001, 2, 1, 1, 'LX',       'campus switch',                 'SNMP');
INSERT INTO device_type (position, name, version, type_id, version_id, support_backup, series, description, protocol) VALUES
  ( 7, 'RX 300',         'R3',             1004, 1, 1, 'RX',       'access router',                      'SNMP');
INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  ( 8, 'Fjord-DC 32',    'F2.1',           1005, 1, 1, 1, 'Fjord',    'data centre switch',            'SNMP');
INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type, support_backup, series, description, protocol) VALUES
  ( 9, 'NetEdge 5',      'N1',             1006, 1, 1, 1, 'NetEdge',  'customer gateway',              'CLI'),
  (10, 'SW-100',         'S4',             1007, 1, 1, 1, 'SW',       'desktop switch',                'SNMP');
INSERT INTO device_type (position, name, version, type_id, version_id, config_file_type, sys_oid, support_upgrade, support_capacity, capacity_per_version, support_backup, series, description, protocol) VALUES
  (11, 'Quill C4',       'V4',             1008, 1, 1, '1.3.6.1.4.1.32473.4.4', 1, 1, 1, 1, 'Quill', 'aggregation switch, small', 'SNMP'),
  (12, 'Quill C8',       'V8',             1009, 1, 1, '1.3.6.1.4.1.32473.4.8', 1, 1, 1, 1, 'Quill', 'aggregation switch, large', 'SNMP');
INSERT INTO device_type (position, name, version, type_id, version_id, support_patch, support_backup, series, description, protocol) VALUES
  (13, 'OLT-880',        'A2.4',           2001, 1, 1, 1, 'OLT',      'optical line terminal',         'SNMP'),
  (14, 'OLT-220 Mini',   'A1.0',           2002, 1, 0, 1, 'OLT',      'cabinet line terminal',         'SNMP');
INSERT INTO config_file (device_type, path) VALUES
  ('LX 2400/S',          'common/dc/conf/dc/devtype_xmlconf/LX_2400_S_ServerConfiguration.xml'),
  ('LX 2400/S_telnet',   'common/dc/conf/dc/devtype_xmlconf/LX_2400_S_telnet_ServerConfiguration.xml');
INSERT INTO check_file (device_type, path, report_type) VALUES
  ('LX 2400/S_telnet',   'common/dc/conf/dc/check/LX_2400_S_telnet_check.xml', 1);
INSERT INTO device_class (type_id, domain, is_snmp, is_v3r7, compatible_type_id) VALUES
  (1001, 2, 1, 1, NULL);
INSERT INTO telnet_support (type_id, telnet_capability) VALUES
  (1001, 'console'),
  (1001, 'console-v2');
INSERT INTO device (device_id, name, type_id, version_id, ip_address, login_state, connect_state, telnet_capability) VALUES
  ( 101, 'lx-hall-a',      1001, 1, '192.0.2.11',   0, 0, 'console');
INSERT INTO device (device_id, name, type_id, version_id, ip_address, soft_version, patch_version) VALUES
  ( 601, 'quill-a', 1008, 1, '203.0.113.1', 'V4.2', ''),
  ( 602, 'quill-b', 1008, 1, '203.0.113.2', 'V5.0', '');
INSERT INTO version_in_service (position, device_type, device_type_version, soft_version, patch_version) VALUES
  (1, 'Quill C4', 'V4', 'V4.2', ''),
  (2, 'Quill C4', 'V4', 'V5.0', '');
INSERT INTO capacity (position, device_type, device_type_version, soft_version, patch_version, full_config) VALUES
  (1, 'Quill C4', 'V4', 'V4.2', '',    0);
INSERT INTO setting (name, value) VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '1');
INSERT INTO config_item (section, key, value) VALUES ('DC', 'FIXED_CHECK_ITEM', 1);
INSERT INTO resource (key, value) VALUES ('BACKUP_PROGRAM_SUPPORT', '1');
INSERT INTO environment (name, value) VALUES
  ('APP_ROOT', '${ROOT}/'),
  ('ENV_ROOT', '${ROOT}/');
