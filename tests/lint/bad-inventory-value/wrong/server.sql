INSERT INTO device_type (position, name, version, config_file_type) VALUES (1, 'RX 900', 'R9', 2);
INSERT INTO config_file (device_type, path) VALUES
  ('RX 900', 'common/dc/conf/dc/devtype_xmlconf/RX_900_ServerConfiguration.xml');
INSERT INTO resource (key, value) VALUES ('BACKUP_PROGRAM_SUPPORT', 'yes');
INSERT INTO environment (name, value) VALUES ('OSS_LANG', 'ja_JP');
