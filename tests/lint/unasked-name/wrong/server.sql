INSERT INTO device_type (position, name, version) VALUES (1, 'RX 900', 'R9');
INSERT INTO config_file (device_type, path) VALUES
  ('RX 900', 'common/dc/conf/dc/devtype_xmlconf/RX_900_ServerConfiguration.xml');
INSERT INTO setting (name, value) VALUES ('WDM_SUPPORT_ISU_UPGRADE', '1');
INSERT INTO config_item (section, key, value) VALUES ('Dc', 'FIXED_CHECK_ITEM', 1);
