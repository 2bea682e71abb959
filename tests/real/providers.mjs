// Independent sign-in providers on the loopback address, with the one client that the tests are.
import { once } from 'node:events';
import { createServer } from 'node:http';

export const clientId = 'client-1';

export async function freePort() {
  const server = createServer();
  await once(server.listen(0, '127.0.0.1'), 'listening');
  const { port } = server.address();
  server.close();
  return port;
}

// Gives each refresh token once. A second use of one revokes all that came from the same sign-in.
export async function startOidcProvider({ accessSeconds = 3600 } = {}) {
  const { default: OidcProvider } = await import('oidc-provider');
  let provider;
  const server = createServer((request, response) => provider.callback()(request, response));
  await once(server.listen(0, '127.0.0.1'), 'listening');
  const authority = `http://127.0.0.1:${server.address().port}`;
  provider = new OidcProvider(authority, {
    clients: [
      {
        client_id: clientId,
        application_type: 'native',
        token_endpoint_auth_method: 'none',
        grant_types: ['authorization_code', 'refresh_token'],
        response_types: ['code'],
        redirect_uris: ['http://127.0.0.1/done', 'http://localhost/done', 'http://[::1]/done'],
      },
    ],
    rotateRefreshToken: true,
    ttl: { AccessToken: accessSeconds },
  });
  const counts = { redeemed: 0, refused: 0, revoked: 0 };
  provider.on('refresh_token.consumed', () => ++counts.redeemed);
  provider.on('grant.error', () => ++counts.refused);
  provider.on('grant.revoked', () => ++counts.revoked);
  return { authority, counts, stop: () => stopServer(server) };
}

// Signs in at once whoever asks.
export async function startMockProvider(port = 0) {
  const { OAuth2Server } = await import('oauth2-mock-server');
  const provider = new OAuth2Server();
  await provider.issuer.keys.generate('RS256');
  await provider.start(port, '127.0.0.1');
  return {
    authority: provider.issuer.url,
    port: provider.address().port,
    onToken: (change) => provider.service.on('beforeResponse', change),
    stop: () => provider.stop(),
  };
}

function stopServer(server) {
  server.closeAllConnections();
  return new Promise((resolve) => server.close(resolve));
}
