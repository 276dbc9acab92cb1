INSERT INTO device_type (position, name, version, type_id, version_id) VALUES
  (1, 'RX 900', 'R9', 1003, 1);
INSERT INTO config_file (device_type, path) VALUES
  ('RX900', 'common/dc/conf/dc/devtype_xmlconf/RX_900_ServerConfiguration.xml');
INSERT INTO device (device_id, name, type_id, version_id) VALUES
  (101, 'hall-a', 1003, 1),
  (102, 'hall-b', 1003, 2);
