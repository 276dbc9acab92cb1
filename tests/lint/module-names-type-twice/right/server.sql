INSERT INTO device_type (position, name, version, type_id, version_id) VALUES
  (1, 'EX 100', 'V1', 1, 1);
INSERT INTO config_file (device_type, path) VALUES
  ('EX 100', 'EX_100_ServerConfiguration.xml');
