import { storeTests } from './store_tests.mjs';

storeTests('http');
