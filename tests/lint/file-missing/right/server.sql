INSERT INTO device_type (name, version, config_file_type) VALUES ('Delta 8', 'D1', 1);
