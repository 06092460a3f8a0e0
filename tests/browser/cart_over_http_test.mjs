import { cartTests } from './cart_tests.mjs';

cartTests('http');
